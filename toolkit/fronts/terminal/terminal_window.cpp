#include "toolkit/fronts/terminal/terminal_window.h"

#include "toolkit/fronts/terminal/captions.h"
#include "toolkit/fronts/terminal/menu_entries.h"
#include "toolkit/fronts/terminal/window_stack.h"

#include <utility>

namespace tavrik::front::terminal {

TerminalWindow::TerminalWindow(WindowListener& listener, std::shared_ptr<WindowStack> stack)
    : listener_(listener), stack_(std::move(stack)) {
    stack_->add(*this);
}

TerminalWindow::~TerminalWindow() { stack_->remove(*this); }

void TerminalWindow::apply(const WindowDescription& window) {
    const bool was_seen = visible() && !minimized();
    window_ = window;
    const bool appears = visible() && !minimized() && !was_seen;
    if (appears) stack_->raise(*this);
}

void TerminalWindow::apply_menus(std::span<const MenuDescription> menus) { entries_ = menu_entries(menus); }

void TerminalWindow::bring_to_front() { stack_->raise(*this); }

std::vector<MenuEntry> TerminalWindow::entries() const {
    return window_.menu_bar_visible ? entries_ : std::vector<MenuEntry>();
}

std::vector<TerminalWindow::Line> TerminalWindow::control_lines() const {
    std::vector<Line> lines;
    for (Control* const control : place_.controls->in_tab_order()) {
        for (std::size_t part = 0; part < control->views().size(); ++part) lines.push_back({control, part});
    }
    return lines;
}

WindowView TerminalWindow::view(std::string_view untitled) const {
    const std::string_view title = window_.title.empty() ? untitled : window_.title;
    WindowView view{.title = printable(title), .entries = entries(), .controls = {}};
    for (const Control* const control : place_.controls->in_tab_order()) {
        for (ControlView& line : control->views()) view.controls.push_back(std::move(line));
    }
    return view;
}

}  // namespace tavrik::front::terminal
