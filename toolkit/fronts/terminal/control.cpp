#include "toolkit/fronts/terminal/control.h"

#include <algorithm>
#include <utility>

namespace tavrik::front::terminal {

void ControlList::add(Control& control) { controls_.push_back(&control); }

void ControlList::remove(Control& control) { std::erase(controls_, &control); }

std::vector<Control*> ControlList::in_tab_order() const {
    std::vector<Control*> ordered;
    collect(ordered);
    return ordered;
}

void ControlList::collect(std::vector<Control*>& ordered) const {
    std::vector<Control*> here = controls_;
    std::ranges::stable_sort(here, {}, &Control::tab_index);
    for (Control* const control : here) {
        if (!control->visible()) continue;
        ordered.push_back(control);
        control->inside().collect(ordered);
    }
}

void Focus::set(Control& control) {
    if (control_ == &control) return;
    Control* const before = std::exchange(control_, &control);
    if (before != nullptr) before->report_focus(false);
    // The report may have moved the focus on, or destroyed the control.
    if (control_ == &control) control.report_focus(true);
}

void Focus::clear() {
    if (Control* const before = std::exchange(control_, nullptr)) before->report_focus(false);
}

void Focus::forget(const Control& control) {
    if (control_ == &control) control_ = nullptr;
}

}  // namespace tavrik::front::terminal
