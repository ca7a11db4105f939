#include "toolkit/fronts/qt/control_faces.h"

#include "toolkit/fronts/qt/button.h"
#include "toolkit/fronts/qt/canvas.h"
#include "toolkit/fronts/qt/panel.h"
#include "toolkit/fronts/qt/tabs.h"

namespace tavrik::front::qt {
namespace {

class QtTabsFace final : public ControlFaceOf<TabsFace, Tabs, TabsDescription> {
public:
    using ControlFaceOf::ControlFaceOf;

    int tab_at(Point at) override { return widget() ? widget()->tab_at({at.left, at.top}) : -1; }
};

}  // namespace

std::unique_ptr<ButtonFace> make_button_in(Container& container, ControlListener& control, ButtonListener& button) {
    return std::make_unique<ControlFaceOf<ButtonFace, Button, ButtonDescription>>(
        new Button(container, control, button));
}

std::unique_ptr<CanvasFace> make_canvas_in(Container& container, ControlListener& control) {
    return std::make_unique<ControlFaceOf<CanvasFace, Canvas, CanvasDescription>>(new Canvas(container, control));
}

std::unique_ptr<PanelFace> make_panel_in(Container& container, ControlListener& control) {
    return std::make_unique<ControlFaceOf<PanelFace, Panel, ControlDescription>>(new Panel(container, control));
}

std::unique_ptr<TabsFace> make_tabs_in(Container& container, ControlListener& control, TabsListener& tabs) {
    return std::make_unique<QtTabsFace>(new Tabs(container, control, tabs));
}

void update_part(QWidget& widget, const Rect* part) {
    part == nullptr ? widget.update() : widget.update(part->left, part->top, part->width, part->height);
}

}  // namespace tavrik::front::qt
