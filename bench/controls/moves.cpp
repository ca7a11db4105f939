// One move of the mouse over ten thousand controls, from the platform's report on.
#include "bench/controls/bare_qt_windows.h"
#include "bench/controls/class_layer_windows.h"
#include "bench/controls/front.h"

#include <QTest>
#include <benchmark/benchmark.h>

namespace tavrik::bench {
namespace {

// All over the squares, and nearly always in another one than before.
class Pointer {
public:
    QPoint next() {
        constexpr int kSide = kAllSquares.in_a_row * kAllSquares.side;
        step_ = (step_ + 1) % (kSide * 16);
        return {1 + step_ * 37 % (kSide - 1), 1 + step_ * 241 % (kSide - 1)};
    }

private:
    int step_ = 0;
};

void move_over(benchmark::State& state, QWidget& window) {
    wait_until_painted(window);
    Pointer pointer;
    for (auto _ : state) QTest::mouseMove(window.windowHandle(), pointer.next());
}

void move_over_canvases(benchmark::State& state, Tree tree) {
    Ref<Window> window = make_window_with_canvases(tree);
    window->Show();
    move_over(state, shown_window());
    window->Close();
    window = nullptr;
    settle();
}
BENCHMARK_CAPTURE(move_over_canvases, flat, Tree::kFlat);
BENCHMARK_CAPTURE(move_over_canvases, nested, Tree::kNested);

void move_over_bare_widgets(benchmark::State& state, Tree tree) {
    const std::unique_ptr<QWidget> window = make_bare_window_with_widgets(tree);
    window->show();
    move_over(state, *window);
}
BENCHMARK_CAPTURE(move_over_bare_widgets, flat, Tree::kFlat);
BENCHMARK_CAPTURE(move_over_bare_widgets, nested, Tree::kNested);

}  // namespace
}  // namespace tavrik::bench
