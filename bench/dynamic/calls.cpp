// A method that was looked up before, called with a text and a number.
#include "bench/dynamic/glib_speaker.h"
#include "bench/dynamic/qt_speaker.h"
#include "bench/dynamic/rttr_speaker.h"
#include "bench/dynamic/speaker.h"
#include "introspection/class_info.h"
#include "introspection/introspection.h"
#include "introspection/method_info.h"

#include <QMetaMethod>
#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

Ref<Introspection::MethodInfo> method_named(Arg<Object> object, std::string_view name) {
    const auto methods = Introspection::GetType(object)->GetMethods();
    for (std::int32_t i = 0; i <= methods->upper_bound(); ++i) {
        Ref<Introspection::MethodInfo> method = methods->at(i);
        if (method->Name() == name) return method;
    }
    return nullptr;
}

void invoke_method(benchmark::State& state) {
    const Ref<Speaker> speaker = make<Speaker>();
    const auto say = method_named(speaker, "Say");
    const auto arguments = ArrayOf<Variant>::make();
    arguments->append(StringToVariant("hello"_s));
    arguments->append(Int32ToVariant(3));
    for (auto _ : state) benchmark::DoNotOptimize(say->Invoke(speaker, arguments));
}
BENCHMARK(invoke_method);

void invoke_qt_method(benchmark::State& state) {
    QtSpeaker speaker;
    const QMetaMethod say = speaker.metaObject()->method(speaker.metaObject()->indexOfMethod("say(QString,int)"));
    const QString text = QStringLiteral("hello");
    const int times = 3;
    bool result = false;
    for (auto _ : state) {
        say.invoke(&speaker, Qt::DirectConnection, Q_RETURN_ARG(bool, result), Q_ARG(QString, text), Q_ARG(int, times));
        benchmark::DoNotOptimize(result);
    }
}
BENCHMARK(invoke_qt_method);

void invoke_rttr_method(benchmark::State& state) {
    RttrSpeaker speaker;
    const rttr::method say = rttr::type::get<RttrSpeaker>().get_method("say");
    const std::string text = "hello";
    const int times = 3;
    for (auto _ : state) benchmark::DoNotOptimize(say.invoke(speaker, text, times));
}
BENCHMARK(invoke_rttr_method);

void invoke_glib_closure(benchmark::State& state) {
    GObject* const speaker = new_glib_speaker();
    GClosure* const say = new_glib_closure();
    GValue values[3] = {};
    GValue result = {};
    g_value_init(&values[0], G_TYPE_OBJECT);
    g_value_set_object(&values[0], speaker);
    g_value_init(&values[1], G_TYPE_STRING);
    g_value_set_static_string(&values[1], "hello");
    g_value_init(&values[2], G_TYPE_INT);
    g_value_set_int(&values[2], 3);
    g_value_init(&result, G_TYPE_BOOLEAN);
    for (auto _ : state) {
        g_closure_invoke(say, &result, 3, values, nullptr);
        benchmark::DoNotOptimize(result);
    }
    for (GValue& value : values) g_value_unset(&value);
    g_closure_unref(say);
    g_object_unref(speaker);
}
BENCHMARK(invoke_glib_closure);

void type_of_an_object(benchmark::State& state) {
    const Ref<Speaker> speaker = make<Speaker>();
    for (auto _ : state) benchmark::DoNotOptimize(Introspection::GetType(speaker));
}
BENCHMARK(type_of_an_object);

}  // namespace
}  // namespace tavrik::bench
