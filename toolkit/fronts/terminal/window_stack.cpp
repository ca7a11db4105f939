#include "toolkit/fronts/terminal/window_stack.h"

#include "toolkit/fronts/terminal/terminal_window.h"

#include <algorithm>
#include <utility>

namespace tavrik::front::terminal {

void WindowStack::add(TerminalWindow& window) { windows_.push_back(&window); }

void WindowStack::remove(TerminalWindow& window) {
    std::erase(windows_, &window);
    if (active_ == &window) active_ = nullptr;
}

void WindowStack::raise(TerminalWindow& window) {
    std::erase(windows_, &window);
    windows_.push_back(&window);
}

TerminalWindow* WindowStack::frontmost() const {
    constexpr auto rank = [](const TerminalWindow* window) {
        if (!window->visible()) return 0;
        if (window->modal()) return 3;
        return window->minimized() ? 1 : 2;
    };
    const auto found = std::max_element(windows_.rbegin(), windows_.rend(),
                                        [&](const auto* a, const auto* b) { return rank(a) < rank(b); });
    return found == windows_.rend() || rank(*found) == 0 ? nullptr : *found;
}

void WindowStack::report_activation() {
    TerminalWindow* window = frontmost();
    if (window == active_) return;
    TerminalWindow* before = std::exchange(active_, window);
    if (before != nullptr) before->listener().activated(false);
    // The report may have changed the front, or destroyed the window.
    if (window != nullptr && active_ == window) window->listener().activated(true);
}

}  // namespace tavrik::front::terminal
