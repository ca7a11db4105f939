#include "toolkit/core/canvas.h"

#include "toolkit/core/pane.h"
#include "toolkit/core/reflection.h"

#include <tavrik/canvas.h>
#include <tavrik/control.h>
#include <tavrik/fields.h>

namespace tavrik {
namespace core {
namespace {

constinit Event<bool(std::int32_t, std::int32_t)> pressed{"Canvas", "MouseDown"};
constinit Event<bool(Object*, std::int32_t, std::int32_t)> constructs_menu{"RectControl", "ConstructContextualMenu"};
constinit Property<bool> accepts_focus{"Canvas", "AcceptFocus"};
constinit Property<bool> accepts_tabs{"Canvas", "AcceptTabs"};
constinit Property<bool> uses_focus_ring{"Canvas", "UseFocusRing"};
constinit Property<bool> erases_background{"Canvas", "EraseBackground"};

}  // namespace

std::unique_ptr<front::ControlFace> CanvasState::make_face(front::ContainerFace& container,
                                                           front::ControlListener& listener) {
    return container.make_canvas(listener);
}

void CanvasState::apply_to(front::ControlFace& face) {
    front::CanvasDescription canvas;
    describe_canvas(canvas);
    told_ = stored_looks();
    static_cast<front::CanvasFace&>(face).apply(canvas);
}

void CanvasState::describe_canvas(front::CanvasDescription& canvas) const {
    describe(canvas);
    const Looks looks = stored_looks();
    canvas.hears_presses = looks.hears_presses;
    canvas.accepts_focus = looks.accepts_focus;
    canvas.accepts_tabs = looks.accepts_tabs;
    canvas.focus_ring = looks.focus_ring;
    canvas.erases_background = looks.erases_background;
}

CanvasState::Looks CanvasState::stored_looks() const {
    return {hears_presses(), accepts_focus.get(self()), accepts_tabs.get(self()), uses_focus_ring.get(self()),
            erases_background.get(self())};
}

bool CanvasState::hears_presses() const { return pressed.handled(self()) || constructs_menu.handled(self()); }

void CanvasState::look_at_stored_properties() {
    if (stored_looks() != told_) changed();
}

std::unique_ptr<ControlState> make_canvas_state(Object* canvas) { return std::make_unique<CanvasState>(canvas); }

}  // namespace core

void RuntimeCanvasInitializer(Object* canvas) {
    core::uses_focus_ring.set(canvas, true);
    core::erases_background.set(canvas, true);
}
void RuntimeCanvasDestructor(Object* canvas) { core::control_state(canvas).detach(); }
void CanvasCreatePane(Object* canvas) { core::create_pane(canvas); }

// What is shown comes from the Paint event, which is asked for the whole part again.
void canvasScroll(Object* canvas, std::int32_t delta_x, std::int32_t delta_y, std::int32_t left, std::int32_t top,
                  std::int32_t width, std::int32_t height, bool controls) {
    core::ControlState& state = core::control_state(canvas);
    const front::Rect part{left, top, width, height};
    if (controls) state.scroll_children(part, delta_x, delta_y);
    state.refresh(&part);
}

Ref<Object> canvasGraphicsGetter(Object*, std::int32_t) { return nullptr; }

void canvasBackdropSetter(Object* canvas, std::int32_t field, Object* picture) {
    objSetter(canvas, field, picture);
    core::control_state(canvas).refresh(nullptr);
}

}  // namespace tavrik
