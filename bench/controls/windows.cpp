// A window with three buttons, from nothing to the first painted picture and back to nothing.
#include "bench/controls/bare_qt_windows.h"
#include "bench/controls/class_layer_windows.h"
#include "bench/controls/front.h"

#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

constexpr int kButtons = 3;

void open_and_close_window(benchmark::State& state) {
    for (auto _ : state) {
        const Ref<Window> window = make_window_with_buttons(kButtons, ButtonHeight::kEnough);
        window->Show();
        wait_until_painted(shown_window());
        window->Close();
        settle();
    }
}
BENCHMARK(open_and_close_window)->Unit(benchmark::kMicrosecond);

void open_and_close_bare_window(benchmark::State& state) {
    for (auto _ : state) {
        const std::unique_ptr<QWidget> window = make_bare_window_with_buttons(kButtons, ButtonHeight::kEnough);
        window->show();
        wait_until_painted(*window);
        window->close();
        settle();
    }
}
BENCHMARK(open_and_close_bare_window)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tavrik::bench
