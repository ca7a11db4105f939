#include "toolkit/fronts/terminal/terminal_button.h"

#include "toolkit/fronts/terminal/captions.h"

namespace tavrik::front::terminal {

std::vector<ControlView> TerminalButton::views() const {
    return {{.caption = printed_caption(shown().caption), .value = {}, .enabled = shown().enabled}};
}

}  // namespace tavrik::front::terminal
