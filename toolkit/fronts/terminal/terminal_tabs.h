#pragma once

#include "toolkit/fronts/terminal/terminal_control.h"

namespace tavrik::front::terminal {

// An entry for each tab; using it chooses the tab.
class TerminalTabs final : public TerminalControl<TabsFace, TabsDescription> {
public:
    TerminalTabs(const Place& place, ControlListener& control, TabsListener& tabs)
        : TerminalControl(place, control), tabs_(tabs) {}

    std::vector<ControlView> views() const override;
    void use(std::size_t part) override;
    int tab_at(Point) override { return -1; }

private:
    TabsListener& tabs_;
};

}  // namespace tavrik::front::terminal
