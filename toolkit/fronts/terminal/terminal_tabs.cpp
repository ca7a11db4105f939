#include "toolkit/fronts/terminal/terminal_tabs.h"

#include "toolkit/fronts/terminal/captions.h"

namespace tavrik::front::terminal {

std::vector<ControlView> TerminalTabs::views() const {
    std::vector<ControlView> tabs;
    for (const std::string& caption : shown().captions) {
        const bool is_chosen = static_cast<int>(tabs.size()) == shown().chosen;
        tabs.push_back(
            {.caption = printed_caption(caption), .value = is_chosen ? "shown" : "", .enabled = shown().enabled});
    }
    return tabs;
}

void TerminalTabs::use(std::size_t part) {
    if (static_cast<int>(part) != shown().chosen) tabs_.tab_chosen(static_cast<int>(part));
}

}  // namespace tavrik::front::terminal
