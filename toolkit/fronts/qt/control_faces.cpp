#include "toolkit/fronts/qt/control_faces.h"

#include "toolkit/fronts/qt/button.h"
#include "toolkit/fronts/qt/canvas.h"
#include "toolkit/fronts/qt/panel.h"

namespace tavrik::front::qt {

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

void update_part(QWidget& widget, const Rect* part) {
    part == nullptr ? widget.update() : widget.update(part->left, part->top, part->width, part->height);
}

}  // namespace tavrik::front::qt
