// Elements of an array, each read and written by an index that the compiler doesn't know, and checked.
#include "runtime/class.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace tavrik::bench {
namespace {

constexpr std::int32_t kUpperBound = 255;

void read_element(benchmark::State& state) {
    const Ref<ArrayOf<std::int32_t>> array = ArrayOf<std::int32_t>::make(kUpperBound);
    std::int32_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index = (index + 1) & kUpperBound);
        benchmark::DoNotOptimize(array->at(index));
    }
}
BENCHMARK(read_element);

void read_vector(benchmark::State& state) {
    const std::vector<std::int32_t> vector(kUpperBound + 1);
    std::size_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index = (index + 1) & kUpperBound);
        benchmark::DoNotOptimize(vector.at(index));
    }
}
BENCHMARK(read_vector);

void write_element(benchmark::State& state) {
    const Ref<ArrayOf<std::int32_t>> array = ArrayOf<std::int32_t>::make(kUpperBound);
    std::int32_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index = (index + 1) & kUpperBound);
        array->set(index, index);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(write_element);

void write_vector(benchmark::State& state) {
    std::vector<std::int32_t> vector(kUpperBound + 1);
    std::size_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(index = (index + 1) & kUpperBound);
        vector.at(index) = static_cast<std::int32_t>(index);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(write_vector);

}  // namespace
}  // namespace tavrik::bench
