#pragma once

#include "toolkit/fronts/terminal/terminal_control.h"

namespace tavrik::front::terminal {

// Only what lies in it is listed.
class TerminalPanel final : public TerminalControl<PanelFace, ControlDescription> {
public:
    using TerminalControl::TerminalControl;

    bool is_listed() const override { return false; }
    ControlView view() const override { return {}; }
    void use() override {}
};

}  // namespace tavrik::front::terminal
