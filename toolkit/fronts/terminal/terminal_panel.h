#pragma once

#include "toolkit/fronts/terminal/terminal_control.h"

namespace tavrik::front::terminal {

// Only what lies in it is listed.
class TerminalPanel final : public TerminalControl<PanelFace, ControlDescription> {
public:
    using TerminalControl::TerminalControl;

    std::vector<ControlView> views() const override { return {}; }
    void use(std::size_t) override {}
};

}  // namespace tavrik::front::terminal
