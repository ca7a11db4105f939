// A property that was looked up before, read and written as a variant.
#include "bench/dynamic/glib_speaker.h"
#include "bench/dynamic/qt_speaker.h"
#include "bench/dynamic/rttr_speaker.h"
#include "bench/dynamic/speaker.h"
#include "introspection/class_info.h"
#include "introspection/introspection.h"
#include "introspection/property_info.h"

#include <QMetaProperty>
#include <QVariant>
#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

Ref<Introspection::PropertyInfo> property_named(Arg<Object> object, std::string_view name) {
    const auto properties = Introspection::GetType(object)->GetProperties();
    for (std::int32_t i = 0; i <= properties->upper_bound(); ++i) {
        Ref<Introspection::PropertyInfo> property = properties->at(i);
        if (property->Name() == name) return property;
    }
    return nullptr;
}

QMetaProperty qt_volume(const QtSpeaker& speaker) {
    return speaker.metaObject()->property(speaker.metaObject()->indexOfProperty("volume"));
}

void get_property(benchmark::State& state) {
    const Ref<Speaker> speaker = make<Speaker>();
    const auto volume = property_named(speaker, "Volume");
    for (auto _ : state) benchmark::DoNotOptimize(volume->Value(speaker));
}
BENCHMARK(get_property);

void get_qt_property(benchmark::State& state) {
    QtSpeaker speaker;
    const QMetaProperty volume = qt_volume(speaker);
    for (auto _ : state) benchmark::DoNotOptimize(volume.read(&speaker));
}
BENCHMARK(get_qt_property);

void get_rttr_property(benchmark::State& state) {
    RttrSpeaker speaker;
    const rttr::property volume = rttr::type::get<RttrSpeaker>().get_property("volume");
    for (auto _ : state) benchmark::DoNotOptimize(volume.get_value(speaker));
}
BENCHMARK(get_rttr_property);

void get_glib_property(benchmark::State& state) {
    GObject* const speaker = new_glib_speaker();
    for (auto _ : state) {
        GValue value = {};
        g_value_init(&value, G_TYPE_INT);
        g_object_get_property(speaker, "volume", &value);
        benchmark::DoNotOptimize(value);
    }
    g_object_unref(speaker);
}
BENCHMARK(get_glib_property);

void set_property(benchmark::State& state) {
    const Ref<Speaker> speaker = make<Speaker>();
    const auto volume = property_named(speaker, "Volume");
    const Ref<Variant> value = Int32ToVariant(7);
    for (auto _ : state) volume->set_Value(speaker, value);
}
BENCHMARK(set_property);

void set_qt_property(benchmark::State& state) {
    QtSpeaker speaker;
    const QMetaProperty volume = qt_volume(speaker);
    const QVariant value(7);
    for (auto _ : state) volume.write(&speaker, value);
}
BENCHMARK(set_qt_property);

void set_rttr_property(benchmark::State& state) {
    RttrSpeaker speaker;
    const rttr::property volume = rttr::type::get<RttrSpeaker>().get_property("volume");
    const int value = 7;
    for (auto _ : state) benchmark::DoNotOptimize(volume.set_value(speaker, value));
}
BENCHMARK(set_rttr_property);

void set_glib_property(benchmark::State& state) {
    GObject* const speaker = new_glib_speaker();
    GValue value = {};
    g_value_init(&value, G_TYPE_INT);
    g_value_set_int(&value, 7);
    for (auto _ : state) g_object_set_property(speaker, "volume", &value);
    g_object_unref(speaker);
}
BENCHMARK(set_glib_property);

void box_and_unbox(benchmark::State& state) {
    std::int32_t value = 7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        Ref<Variant> variant = Int32ToVariant(value);
        benchmark::DoNotOptimize(variant);
        benchmark::DoNotOptimize(VariantToInt32(variant.object()));
    }
}
BENCHMARK(box_and_unbox);

void box_and_unbox_qvariant(benchmark::State& state) {
    int value = 7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(value);
        QVariant variant(value);
        benchmark::DoNotOptimize(variant);
        benchmark::DoNotOptimize(variant.toInt());
    }
}
BENCHMARK(box_and_unbox_qvariant);

}  // namespace
}  // namespace tavrik::bench
