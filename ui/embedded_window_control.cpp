#include "ui/embedded_window_control.h"

#include "ui/input_interfaces.h"

namespace tavrik {
namespace {

using Host = EmbeddedWindowControl;

void drop_object(Host* self, Arg<DragItem> item, std::int32_t) { ewcDropObject(self, item.object()); }

constexpr OperationRow kOperations[] = {
    operation<&Host::Event_EnableMenuItems, ewcEnableMenuItems>("Event_EnableMenuItems"),
    operation<&Host::Event_LostFocus, ewcLostFocus>("Event_LostFocus"),
    operation<&Host::Event_GotFocus, ewcGotFocus>("Event_GotFocus"),
    operation<&Host::Event_KeyDown, ewcKeyDown>("Event_KeyDown"),
    operation<&Host::Event_MouseUp, ewcMouseUp>("Event_MouseUp"),
    operation<&Host::Event_MouseDrag, ewcMouseDrag>("Event_MouseDrag"),
    operation<&Host::Event_MouseDown, ewcMouseDown>("Event_MouseDown"),
    operation<&Host::Event_Paint, ewcPaint>("Event_Paint"),
    operation<&Host::Event_MouseWheel, ewcMouseWheel>("Event_MouseWheel"),
    operation<&Host::Event_DropObject, drop_object>("Event_DropObject"),
    operation<&Host::Event_MouseExit, ewcMouseExit>("Event_MouseExit"),
    operation<&Host::Event_MouseEnter, ewcMouseEnter>("Event_MouseEnter"),
    operation<&Host::Event_MouseMove, ewcMouseMove>("Event_MouseMove"),
    operation<&Host::Event_Close, ewcClose>("Event_Close"),
    operation<&Host::Event_Open, ewcOpen>("Event_Open"),
};

constexpr HandlerRow kHandlers[] = {
    handles<&Host::Event_EnableMenuItems>("EnableMenuItems", Canvas::Events::EnableMenuItems),
    handles<&Host::Event_LostFocus>("LostFocus", Canvas::Events::LostFocus),
    handles<&Host::Event_GotFocus>("GotFocus", Canvas::Events::GotFocus),
    handles<&Host::Event_KeyDown>("KeyDown", RectControl::Events::KeyDown),
    handles<&Host::Event_MouseUp>("MouseUp", Canvas::Events::MouseUp),
    handles<&Host::Event_MouseDrag>("MouseDrag", Canvas::Events::MouseDrag),
    handles<&Host::Event_MouseDown>("MouseDown", Canvas::Events::MouseDown),
    handles<&Host::Event_Paint>("Paint", Canvas::Events::Paint),
    handles<&Host::Event_MouseWheel>("MouseWheel", RectControl::Events::MouseWheel),
    handles<&Host::Event_DropObject>("DropObject", RectControl::Events::DropObject),
    handles<&Host::Event_MouseExit>("MouseExit", RectControl::Events::MouseExit),
    handles<&Host::Event_MouseEnter>("MouseEnter", RectControl::Events::MouseEnter),
    handles<&Host::Event_MouseMove>("MouseMove", RectControl::Events::MouseMove),
    handles<&Host::Event_Close>("Close", Control::Events::Close),
    handles<&Host::Event_Open>("Open", Control::Events::Open),
};

constexpr InterfaceRow kInterfaces[] = {
    implements<_MouseEvents, &Canvas::_MouseDown, &Canvas::_MouseDrag, &Canvas::_MouseUp>(),
    implements<_FocusEvents, &Canvas::_GotFocus, &Canvas::_LostFocus>(),
};

}  // namespace

const ClassDefinition& EmbeddedWindowControl::definition() {
    static constexpr ClassDefinition kDefinition = define<EmbeddedWindowControl>({
        .init = init_forwards_to<EmbeddedWindowControl, EmbeddedWindowControlInitializer>,
        .exit = exit_forwards_to<EmbeddedWindowControl, EmbeddedWindowControlFinalizer>,
        .operations = kOperations,
        .handlers = kHandlers,
        .interfaces = kInterfaces,
    });
    return kDefinition;
}

}  // namespace tavrik
