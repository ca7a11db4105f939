#include "toolkit/fronts/terminal/terminal_control.h"

#include "toolkit/fronts/terminal/terminal_button.h"
#include "toolkit/fronts/terminal/terminal_canvas.h"
#include "toolkit/fronts/terminal/terminal_panel.h"
#include "toolkit/fronts/terminal/terminal_tabs.h"

namespace tavrik::front::terminal {

std::unique_ptr<ButtonFace> make_button_at(const Place& place, ControlListener& control, ButtonListener& button) {
    return std::make_unique<TerminalButton>(place, control, button);
}

std::unique_ptr<CanvasFace> make_canvas_at(const Place& place, ControlListener& control) {
    return std::make_unique<TerminalCanvas>(place, control);
}

std::unique_ptr<PanelFace> make_panel_at(const Place& place, ControlListener& control) {
    return std::make_unique<TerminalPanel>(place, control);
}

std::unique_ptr<TabsFace> make_tabs_at(const Place& place, ControlListener& control, TabsListener& tabs) {
    return std::make_unique<TerminalTabs>(place, control, tabs);
}

}  // namespace tavrik::front::terminal
