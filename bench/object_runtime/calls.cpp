// Operations and events.
#include "bench/object_runtime/counter.h"
#include "bench/object_runtime/peers.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

void virtual_operation(benchmark::State& state) {
    Ref<Counter> counter = make<Counter>();
    benchmark::DoNotOptimize(counter);
    for (auto _ : state) benchmark::DoNotOptimize(counter->Advance(1));
}
BENCHMARK(virtual_operation);

void virtual_function(benchmark::State& state) {
    std::unique_ptr<PlainCounter> counter = make_plain_counter();
    benchmark::DoNotOptimize(counter);
    for (auto _ : state) benchmark::DoNotOptimize(counter->advance(1));
}
BENCHMARK(virtual_function);

void event_with_one_handler(benchmark::State& state) {
    const Ref<Counter> counter = make<Counter>();
    RuntimeInstallInstanceEventHandler(counter.object(), "Announced"_s, reinterpret_cast<Function>(&take_announced));
    std::int32_t count = 0;
    for (auto _ : state) counter->Announce(++count);
}
BENCHMARK(event_with_one_handler);

void signal_with_one_slot(benchmark::State& state) {
    QtCounter counter;
    QtListener listener;
    QObject::connect(&counter, &QtCounter::announced, &listener, &QtListener::take_announced, Qt::DirectConnection);
    int count = 0;
    for (auto _ : state) counter.announce(++count);
}
BENCHMARK(signal_with_one_slot);

}  // namespace
}  // namespace tavrik::bench
