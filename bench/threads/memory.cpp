// What a thread costs that waits among many.
#include "bench/threads/looping.h"

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <fstream>
#include <string>
#include <vector>

namespace tavrik::bench {
namespace {

constexpr int kMany = 10'000;

double resident_bytes() {
    double all = 0;
    double resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

// The time is that of one turn for each.
void ten_thousand_threads(benchmark::State& state) {
    const double before = resident_bytes();
    std::vector<Ref<Thread>> threads;
    for (int i = 0; i < kMany; ++i) threads.push_back(start_looping_thread());
    for (auto _ : state) {
        for (int i = 0; i < kMany; ++i) YieldToNextThread(nullptr);
    }
    state.SetLabel(std::to_string(static_cast<int>((resident_bytes() - before) / kMany)) + " bytes each");
    for (const Ref<Thread>& thread : threads) thread->Kill();
    for (const Ref<Thread>& thread : threads) end(thread);
}
BENCHMARK(ten_thousand_threads);

}  // namespace
}  // namespace tavrik::bench
