#include "ui/rect_control.h"

#include "runtime/frame.h"

#include <tavrik/fields.h>

namespace tavrik {

void RectControl::set_HelpTag(const String& help) {
    controlHelpTagSetter(this, detail::FieldEntry<&RectControl::mHelpTag>::offset(), help);
}
void RectControl::set_BalloonHelp(const String& help) {
    controlBalloonHelpSetter(this, detail::FieldEntry<&RectControl::mBalloonHelp>::offset(), help);
}
void RectControl::set_DisabledBalloonHelp(const String& help) {
    controlDisabledBalloonHelpSetter(this, detail::FieldEntry<&RectControl::mDisabledBalloonHelp>::offset(), help);
}
void RectControl::set_MouseCursor(Arg<tavrik::MouseCursor> cursor) {
    controlMouseCursorSetter(this, detail::FieldEntry<&RectControl::mMouseCursor>::offset(), cursor.object());
}

namespace {

void mouse_enter(RectControl* self) {
    const Frame frame(self);
    RectControl::Events::MouseEnter.raise(self);
}

void mouse_exit(RectControl* self) {
    const Frame frame(self);
    RectControl::Events::MouseExit.raise(self);
}

void mouse_move(RectControl* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    RectControl::Events::MouseMove.raise(self, x, y);
}

bool mouse_wheel(RectControl* self, std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
    const Frame frame(self);
    return RectControl::Events::MouseWheel.raise(self, x, y, delta_x, delta_y);
}

bool key_down(RectControl* self, const String& key) {
    const Frame frame(self, key);
    return RectControl::Events::KeyDown.raise(self, key);
}

using InvalidateRect = void(std::int32_t, std::int32_t, std::int32_t, std::int32_t, bool);

constexpr OperationRow kOperations[] = {
    operation<&RectControl::DrawInto, RuntimeControlDrawInto>("DrawInto"),
    operation<&RectControl::Refresh, RuntimeControlRefresh>("Refresh"),
    operation<&RectControl::RefreshRect, RuntimeControlRefreshRect>("RefreshRect"),
    operation<&RectControl::SetFocus, RuntimeSetFocus>("SetFocus"),
    operation<&RectControl::AcceptTextDrop, controlAcceptTextDrop>("AcceptTextDrop"),
    operation<&RectControl::AcceptPictureDrop, controlAcceptPictureDrop>("AcceptPictureDrop"),
    operation<&RectControl::AcceptFileDrop, controlAcceptFileDrop>("AcceptFileDrop"),
    operation<&RectControl::AcceptMacDataDrop, controlAcceptMacDataDrop>("AcceptMacDataDrop"),
    operation<&RectControl::AcceptRawDataDrop, controlAcceptMacDataDrop>("AcceptRawDataDrop"),
    operation<&RectControl::NewDragItem, controlNewDragItem>("NewDragItem"),
    operation<&RectControl::_AddMenuHandler, ControlAddMenuHandler>("_AddMenuHandler"),
    operation<&RectControl::Constructor, RectControlDefaultConstructor>("Constructor"),
    operation<&RectControl::_Move, RuntimeControlMove>("_Move"),
    operation<&RectControl::_MouseEnter, mouse_enter>("_MouseEnter"),
    operation<&RectControl::_MouseExit, mouse_exit>("_MouseExit"),
    operation<&RectControl::_MouseMove, mouse_move>("_MouseMove"),
    operation<&RectControl::_MouseWheel, mouse_wheel>("_MouseWheel"),
    operation<pick<void(bool)>(&RectControl::Invalidate), RuntimeControlInvalidate>("Invalidate"),
    operation<pick<InvalidateRect>(&RectControl::Invalidate), RuntimeControlInvalidateRect>("Invalidate"),
    operation<&RectControl::_KeyDown, key_down>("_KeyDown"),
    operation<&RectControl::__DependencyList, no_effect>("__DependencyList").not_public(),
    operation<&RectControl::RectControl_, RectControlDefaultConstructor>("RectControl"),
};

constexpr PropertyRow kProperties[] = {
    stored<&RectControl::mHelpTag, controlHelpTagSetter>("HelpTag"),
    stored<&RectControl::mBalloonHelp, controlBalloonHelpSetter>("BalloonHelp"),
    stored<&RectControl::mDisabledBalloonHelp, controlDisabledBalloonHelpSetter>("DisabledBalloonHelp"),
    stored<&RectControl::mMouseCursor, controlMouseCursorSetter>("MouseCursor"),
    property<&RectControl::Visible, &RectControl::set_Visible>("Visible"),
    property<&RectControl::Left, &RectControl::set_Left>("Left"),
    property<&RectControl::Top, &RectControl::set_Top>("Top"),
    property<&RectControl::Width, &RectControl::set_Width>("Width"),
    property<&RectControl::Height, &RectControl::set_Height>("Height"),
    property<&RectControl::Enabled, &RectControl::set_Enabled>("Enabled"),
    property<&RectControl::Active>("Active"),
    property<&RectControl::AutoDeactivate, &RectControl::set_AutoDeactivate>("AutoDeactivate"),
    property<&RectControl::LockLeft, &RectControl::set_LockLeft>("LockLeft"),
    property<&RectControl::LockTop, &RectControl::set_LockTop>("LockTop"),
    property<&RectControl::LockRight, &RectControl::set_LockRight>("LockRight"),
    property<&RectControl::LockBottom, &RectControl::set_LockBottom>("LockBottom"),
    property<&RectControl::Parent, &RectControl::set_Parent>("Parent"),
    write_only<&RectControl::set_InitialParent>("InitialParent"),
    property<&RectControl::TabIndex, &RectControl::set_TabIndex>("TabIndex"),
};

constexpr EventRow kEvents[] = {
    event("MouseMove", RectControl::Events::MouseMove),
    event("MouseEnter", RectControl::Events::MouseEnter),
    event("MouseExit", RectControl::Events::MouseExit),
    event("DropObject", RectControl::Events::DropObject),
    event("MouseWheel", RectControl::Events::MouseWheel),
    event("ConstructContextualMenu", RectControl::Events::ConstructContextualMenu),
    event("ContextualMenuAction", RectControl::Events::ContextualMenuAction),
    event("DragEnter", RectControl::Events::DragEnter),
    event("DragExit", RectControl::Events::DragExit),
    event("DragOver", RectControl::Events::DragOver),
    event("KeyDown", RectControl::Events::KeyDown),
};

}  // namespace

const ClassDefinition& RectControl::definition() {
    static constexpr ClassDefinition kDefinition = define<RectControl>({
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
