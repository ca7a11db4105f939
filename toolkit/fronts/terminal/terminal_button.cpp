#include "toolkit/fronts/terminal/terminal_button.h"

#include "toolkit/fronts/terminal/captions.h"

#include <utility>

namespace tavrik::front::terminal {

TerminalButton::TerminalButton(ButtonListener& listener, std::shared_ptr<ControlList> siblings)
    : listener_(listener), siblings_(std::move(siblings)) {
    siblings_->add(*this);
}

TerminalButton::~TerminalButton() { siblings_->remove(*this); }

void TerminalButton::apply(const ButtonDescription& button) { button_ = button; }

void TerminalButton::set_focus() {
    if (!button_.visible || !button_.enabled) return;
    const std::shared_ptr<ControlList> siblings = siblings_;  // the reports may destroy this button
    siblings->focus(*this);
}

bool TerminalButton::visible() const { return button_.visible; }

int TerminalButton::tab_index() const { return button_.tab_index; }

ControlView TerminalButton::view() const {
    return {.caption = printed_caption(button_.caption), .value = {}, .enabled = button_.enabled};
}

void TerminalButton::use() { listener_.pressed(); }

void TerminalButton::report_focus(bool has_focus) { listener_.focus_changed(has_focus); }

}  // namespace tavrik::front::terminal
