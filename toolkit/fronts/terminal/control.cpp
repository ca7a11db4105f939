#include "toolkit/fronts/terminal/control.h"

#include <algorithm>
#include <utility>

namespace tavrik::front::terminal {

void ControlList::add(Control& control) { controls_.push_back(&control); }

void ControlList::remove(Control& control) {
    std::erase(controls_, &control);
    if (focused_ == &control) focused_ = nullptr;
}

std::vector<Control*> ControlList::in_tab_order() const {
    std::vector<Control*> ordered;
    std::ranges::copy_if(controls_, std::back_inserter(ordered), &Control::visible);
    std::ranges::stable_sort(ordered, {}, &Control::tab_index);
    return ordered;
}

void ControlList::focus(Control& control) {
    if (focused_ == &control) return;
    Control* before = std::exchange(focused_, &control);
    if (before != nullptr) before->report_focus(false);
    // The report may have moved the focus on, or destroyed the control.
    if (focused_ == &control) control.report_focus(true);
}

}  // namespace tavrik::front::terminal
