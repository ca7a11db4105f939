#pragma once

#include "toolkit/fronts/terminal/terminal_control.h"

namespace tavrik::front::terminal {

class TerminalButton final : public TerminalControl<ButtonFace, ButtonDescription> {
public:
    TerminalButton(const Place& place, ControlListener& control, ButtonListener& button)
        : TerminalControl(place, control), button_(button) {}

    std::vector<ControlView> views() const override;
    void use(std::size_t) override { button_.pressed(); }

private:
    ButtonListener& button_;
};

}  // namespace tavrik::front::terminal
