#pragma once

#include "toolkit/fronts/terminal/terminal_control.h"

namespace tavrik::front::terminal {

// Has its name for a picture, where it is there to be used: that presses the mouse in its middle.
class TerminalCanvas final : public TerminalControl<CanvasFace, CanvasDescription> {
public:
    using TerminalControl::TerminalControl;

    std::vector<ControlView> views() const override;
    void use(std::size_t) override;
};

}  // namespace tavrik::front::terminal
