// Prints the bytes of the heap that a shown button takes: ours, bare Qt's, and bare Qt's with a name and a handler, as
// ours have one. And by how many bytes the heap grows while 10,000 windows are opened and closed. Fails if those leave
// objects behind.
#include "bench/controls/bare_qt_windows.h"
#include "bench/controls/class_layer_windows.h"
#include "bench/controls/front.h"

#include <tavrik/class_record.h>

#include <QPushButton>

#include <malloc.h>

#include <cstdio>

namespace tavrik::bench {
namespace {

constexpr int kButtons = 1'000;
constexpr int kWarmUp = 500;
constexpr int kWindows = 10'000;

long long bytes_in_use() {
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<long long>(heap.uordblks + heap.hblkhd);
}

// What a shown window adds to the heap.
template <class Show>
long long bytes_of(int buttons, Show show) {
    const long long at_first = bytes_in_use();
    const auto window = show(buttons);
    return bytes_in_use() - at_first;
}

template <class Show>
long long bytes_per_button(Show show) {
    const long long window = bytes_of(1, show);
    settle();
    return (bytes_of(kButtons + 1, show) - window) / kButtons;
}

// Closes the window at its end.
class ShownWindow {
public:
    explicit ShownWindow(int buttons) : window_(make_window_with_buttons(buttons, ButtonHeight::kEnough)) {
        window_->Show();
        wait_until_painted(shown_window());
    }
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;
    ~ShownWindow() { window_->Close(); }

private:
    Ref<Window> window_;
};

std::unique_ptr<QWidget> show_bare(int buttons) {
    std::unique_ptr<QWidget> window = make_bare_window_with_buttons(buttons, ButtonHeight::kEnough);
    window->show();
    wait_until_painted(*window);
    return window;
}

std::unique_ptr<QWidget> show_bare_with_names(int buttons) {
    std::unique_ptr<QWidget> window = show_bare(buttons);
    for (QPushButton* const button : window->findChildren<QPushButton*>()) {
        button->setObjectName(button->text());
        QObject::connect(button, &QPushButton::clicked, button, [] {});
    }
    return window;
}

void open_and_close(int windows) {
    for (int i = 0; i < windows; ++i) {
        { const ShownWindow window(3); }
        settle();
    }
}

// What either side makes once is there before anything is counted.
void warm_up() {
    show_bare(1);
    open_and_close(1);
}

int run() {
    warm_up();
    const long long ours = bytes_per_button([](int buttons) { return ShownWindow(buttons); });
    settle();
    const long long bare = bytes_per_button(show_bare);
    settle();
    const long long named = bytes_per_button(show_bare_with_names);
    settle();

    open_and_close(kWarmUp);
    const std::int64_t objects = RuntimeLiveObjects();
    const long long at_first = bytes_in_use();
    open_and_close(kWindows);
    if (RuntimeLiveObjects() != objects) {
        std::fprintf(stderr, "%lld objects are left\n", static_cast<long long>(RuntimeLiveObjects() - objects));
        return 1;
    }
    std::printf("%lld\n%lld\n%lld\n%lld\n", ours, bare, named, bytes_in_use() - at_first);
    return 0;
}

}  // namespace
}  // namespace tavrik::bench

int main() {
    tavrik::bench::start();
    const int status = tavrik::bench::run();
    return tavrik::bench::finish() + status;
}
