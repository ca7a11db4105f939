// Texts as literals and as properties.
#include "bench/object_runtime/note.h"
#include "bench/object_runtime/peers.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

void get_text_property(benchmark::State& state) {
    const Ref<Note> note = make<Note>();
    note->set_Text("a text of some length"_s);
    for (auto _ : state) benchmark::DoNotOptimize(note->Text());
}
BENCHMARK(get_text_property);

void get_qstring(benchmark::State& state) {
    const std::unique_ptr<PlainNote> note = make_plain_note();
    note->set_text(QString::fromUtf8("a text of some length"));
    for (auto _ : state) benchmark::DoNotOptimize(note->text());
}
BENCHMARK(get_qstring);

void set_text_property(benchmark::State& state) {
    const Ref<Note> note = make<Note>();
    const String text(std::string_view("a text of some length"));
    for (auto _ : state) note->set_Text(text);
}
BENCHMARK(set_text_property);

void set_qstring(benchmark::State& state) {
    const std::unique_ptr<PlainNote> note = make_plain_note();
    const QString text = QString::fromUtf8("a text of some length");
    for (auto _ : state) note->set_text(text);
}
BENCHMARK(set_qstring);

void pass_literal(benchmark::State& state) {
    const Ref<Note> note = make<Note>();
    for (auto _ : state) benchmark::DoNotOptimize(note->LengthOf("a text of some length"_s));
}
BENCHMARK(pass_literal);

void pass_literal_as_std_string(benchmark::State& state) {
    const std::unique_ptr<PlainNote> note = make_plain_note();
    for (auto _ : state) benchmark::DoNotOptimize(note->length_of(std::string("a text of some length")));
}
BENCHMARK(pass_literal_as_std_string);

void pass_literal_as_qstring(benchmark::State& state) {
    const std::unique_ptr<PlainNote> note = make_plain_note();
    for (auto _ : state) benchmark::DoNotOptimize(note->length_of(QStringLiteral("a text of some length")));
}
BENCHMARK(pass_literal_as_qstring);

}  // namespace
}  // namespace tavrik::bench
