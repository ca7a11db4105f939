// A thousand push buttons, from nothing to the first painted picture.
#include "bench/controls/bare_qt_windows.h"
#include "bench/controls/class_layer_windows.h"
#include "bench/controls/front.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

constexpr int kButtons = 1'000;

void show_buttons(benchmark::State& state, ButtonHeight height) {
    for (auto _ : state) {
        Ref<Window> window = make_window_with_buttons(kButtons, height);
        window->Show();
        wait_until_painted(shown_window());
        state.PauseTiming();
        window->Close();
        window = nullptr;
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(show_buttons, tall, ButtonHeight::kEnough)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(show_buttons, low, ButtonHeight::kTooLow)->Unit(benchmark::kMillisecond);

void show_bare_buttons(benchmark::State& state, ButtonHeight height) {
    for (auto _ : state) {
        std::unique_ptr<QWidget> window = make_bare_window_with_buttons(kButtons, height);
        window->show();
        wait_until_painted(*window);
        state.PauseTiming();
        window.reset();
        settle();
        state.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(show_bare_buttons, tall, ButtonHeight::kEnough)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(show_bare_buttons, low, ButtonHeight::kTooLow)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrik::bench
