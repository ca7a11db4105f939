// Numbers in a memory block, each at an offset that the compiler doesn't know, checked and in either byte order.
#include "data/memory_block.h"

#include "bench/streams/plain_block.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

constexpr std::int32_t kSize = 1024;
constexpr std::int32_t kLast = kSize - 4;

Ref<MemoryBlock> new_block(bool little) {
    Ref<MemoryBlock> block = make<MemoryBlock>();
    block->Constructor(kSize);
    block->set_LittleEndian(little);
    return block;
}

// Calls `access` with one offset after the other.
template <class Access>
void at_each_offset(benchmark::State& state, Access access) {
    std::int32_t offset = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(offset = (offset + 4) & kLast);
        access(offset);
    }
}

void read_int32(benchmark::State& state, bool little) {
    const Ref<MemoryBlock> block = new_block(little);
    at_each_offset(state, [&](std::int32_t offset) { benchmark::DoNotOptimize(block->Int32Value(offset)); });
}
BENCHMARK_CAPTURE(read_int32, little, true);
BENCHMARK_CAPTURE(read_int32, big, false);

void write_int32(benchmark::State& state, bool little) {
    const Ref<MemoryBlock> block = new_block(little);
    at_each_offset(state, [&](std::int32_t offset) {
        block->set_Int32Value(offset, offset);
        benchmark::ClobberMemory();
    });
}
BENCHMARK_CAPTURE(write_int32, little, true);
BENCHMARK_CAPTURE(write_int32, big, false);

void copy_out_of_vector(benchmark::State& state) {
    const std::unique_ptr<PlainBlock> block = make_plain_block(kSize);
    at_each_offset(state, [&](std::int32_t offset) { benchmark::DoNotOptimize(copy_out(*block, offset)); });
}
BENCHMARK(copy_out_of_vector);

void copy_into_vector(benchmark::State& state) {
    const std::unique_ptr<PlainBlock> block = make_plain_block(kSize);
    at_each_offset(state, [&](std::int32_t offset) {
        copy_in(*block, offset, offset);
        benchmark::ClobberMemory();
    });
}
BENCHMARK(copy_into_vector);

}  // namespace
}  // namespace tavrik::bench
