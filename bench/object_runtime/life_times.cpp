// References to objects, and objects that come and go.
#include "bench/object_runtime/counter.h"

#include <QObject>
#include <benchmark/benchmark.h>

#include <memory>

namespace tavrik::bench {
namespace {

// As many bytes as a Counter.
struct SameSize {
    std::byte bytes[sizeof(Counter)];
};

void lock_and_unlock(benchmark::State& state) {
    Ref<Counter> counter = make<Counter>();
    benchmark::DoNotOptimize(counter);
    for (auto _ : state) {
        Ref<Counter> copy = counter;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(lock_and_unlock);

void copy_and_drop_shared_ptr(benchmark::State& state) {
    auto shared = std::make_shared<SameSize>();
    benchmark::DoNotOptimize(shared);
    for (auto _ : state) {
        std::shared_ptr<SameSize> copy = shared;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(copy_and_drop_shared_ptr);

void new_and_release(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(make<Counter>());
}
BENCHMARK(new_and_release);

void make_and_drop_shared_ptr(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(std::make_shared<SameSize>());
}
BENCHMARK(make_and_drop_shared_ptr);

void new_and_delete_qobject(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(std::make_unique<QObject>());
}
BENCHMARK(new_and_delete_qobject);

}  // namespace
}  // namespace tavrik::bench
