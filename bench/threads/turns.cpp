// Turns, and the end of a pass.
#include "bench/threads/looping.h"

#include <tavrik/runtime.h>

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

void loop(Object*) {
    for (;;) YieldToNextThread(nullptr);
}

void thread_round_trip(benchmark::State& state) {
    const Ref<Thread> thread = start_looping_thread();
    for (auto _ : state) YieldToNextThread(nullptr);
    end(thread);
}
BENCHMARK(thread_round_trip);

void start_and_end_thread(benchmark::State& state) {
    const Ref<Thread> thread = make<Thread>();
    for (auto _ : state) {
        thread->Run();
        YieldToNextThread(nullptr);
    }
}
BENCHMARK(start_and_end_thread);

void background_task_alone(benchmark::State& state) {
    for (auto _ : state) {
        RuntimeBackgroundTask();
        benchmark::ClobberMemory();
    }
}
BENCHMARK(background_task_alone);

void background_task_among_threads(benchmark::State& state) {
    const Ref<Thread> thread = start_looping_thread();
    for (auto _ : state) RuntimeBackgroundTask();
    end(thread);
}
BENCHMARK(background_task_among_threads);

}  // namespace

Ref<Thread> start_looping_thread() {
    Ref<Thread> thread = make<Thread>();
    RuntimeInstallInstanceEventHandler(thread.object(), "Run"_s, reinterpret_cast<Function>(&loop));
    thread->Run();
    return thread;
}

void end(const Ref<Thread>& thread) {
    thread->Kill();
    while (ThreadState{thread->State()} != ThreadState::kNotRunning) YieldToNextThread(nullptr);
}

}  // namespace tavrik::bench
