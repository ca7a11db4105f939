#include "toolkit/fronts/terminal/terminal_canvas.h"

#include "toolkit/fronts/terminal/captions.h"

namespace tavrik::front::terminal {

std::vector<ControlView> TerminalCanvas::views() const {
    if (!shown().accepts_focus && !shown().hears_presses) return {};
    return {{.caption = printable(shown().name), .value = {}, .enabled = shown().enabled}};
}

void TerminalCanvas::use(std::size_t) {
    const Point at = middle();
    ControlListener& told = listener();  // outlives the face, which the press may destroy
    if (told.mouse_down(at, MouseButton::kPrimary)) told.mouse_up(at);
}

}  // namespace tavrik::front::terminal
