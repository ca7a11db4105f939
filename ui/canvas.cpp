#include "ui/canvas.h"

#include "runtime/frame.h"
#include "ui/input_interfaces.h"

namespace tavrik {

void Canvas::set_Backdrop(Arg<Picture> picture) {
    canvasBackdropSetter(this, detail::FieldEntry<&Canvas::mBackdrop>::offset(), picture.object());
}

namespace {

bool mouse_down(Canvas* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    return Canvas::Events::MouseDown.raise(self, x, y);
}

void mouse_drag(Canvas* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    Canvas::Events::MouseDrag.raise(self, x, y);
}

void mouse_up(Canvas* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    Canvas::Events::MouseUp.raise(self, x, y);
}

void got_focus(Canvas* self) {
    const Frame frame(self);
    Canvas::Events::GotFocus.raise(self);
}

void lost_focus(Canvas* self) {
    const Frame frame(self);
    Canvas::Events::LostFocus.raise(self);
}

void paint(Canvas* self, Arg<Graphics> graphics) {
    const Frame frame(self, graphics);
    Canvas::Events::Paint.raise(self, graphics);
}

constexpr OperationRow kOperations[] = {
    operation<&Canvas::Event_CreatePane, CanvasCreatePane>("Event_CreatePane"),
    operation<&Canvas::Scroll, canvasScroll>("Scroll"),
    operation<&Canvas::_MouseDown, mouse_down>("_MouseDown"),
    operation<&Canvas::_MouseDrag, mouse_drag>("_MouseDrag"),
    operation<&Canvas::_MouseUp, mouse_up>("_MouseUp"),
    operation<&Canvas::_GotFocus, got_focus>("_GotFocus"),
    operation<&Canvas::_LostFocus, lost_focus>("_LostFocus"),
    operation<&Canvas::_Paint, paint>("_Paint"),
    overrides<Canvas, &RectControl::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&Canvas::Graphics, ignored>("Graphics"), stored<&Canvas::mBackdrop, canvasBackdropSetter>("Backdrop"),
    stored<&Canvas::mAcceptFocus>("AcceptFocus"),     stored<&Canvas::mAcceptTabs>("AcceptTabs"),
    stored<&Canvas::mUseFocusRing>("UseFocusRing"),   stored<&Canvas::mEraseBackground>("EraseBackground"),
};

constexpr EventRow kEvents[] = {
    event("Paint", Canvas::Events::Paint),
    event("GotFocus", Canvas::Events::GotFocus),
    event("LostFocus", Canvas::Events::LostFocus),
    event("MouseDown", Canvas::Events::MouseDown),
    event("MouseDrag", Canvas::Events::MouseDrag),
    event("MouseUp", Canvas::Events::MouseUp),
    event("EnableMenuItems", Canvas::Events::EnableMenuItems),
};

constexpr HandlerRow kHandlers[] = {
    handles<&Canvas::Event_CreatePane>("CreatePane", Control::Events::CreatePane),
};

constexpr InterfaceRow kInterfaces[] = {
    implements<_MouseEvents, &Canvas::_MouseDown, &Canvas::_MouseDrag, &Canvas::_MouseUp>(),
    implements<_FocusEvents, &Canvas::_GotFocus, &Canvas::_LostFocus>(),
};

}  // namespace

const ClassDefinition& Canvas::definition() {
    static constexpr ClassDefinition kDefinition = define<Canvas>({
        .init = init_forwards_to<Canvas, RuntimeCanvasInitializer>,
        .exit = exit_forwards_to<Canvas, RuntimeCanvasDestructor>,
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
        .handlers = kHandlers,
        .interfaces = kInterfaces,
    });
    return kDefinition;
}

}  // namespace tavrik
