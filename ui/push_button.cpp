#include "ui/push_button.h"

#include "runtime/frame.h"
#include "ui/input_interfaces.h"

namespace tavrik {
namespace {

bool mouse_down(PushButton* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    return PushButton::Events::MouseDown.raise(self, x, y);
}

void mouse_drag(PushButton* self, std::int32_t, std::int32_t) { const Frame frame(self); }

void mouse_up(PushButton* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    PushButton::Events::MouseUp.raise(self, x, y);
}

void call_action(PushButton* self) {
    const Frame frame(self);
    PushButton::Events::Action.raise(self);
}

void got_focus(PushButton* self) {
    const Frame frame(self);
    PushButton::Events::GotFocus.raise(self);
}

void lost_focus(PushButton* self) {
    const Frame frame(self);
    PushButton::Events::LostFocus.raise(self);
}

constexpr OperationRow kOperations[] = {
    operation<&PushButton::Event_CreatePane, PushButtonCreatePane>("Event_CreatePane"),
    operation<&PushButton::addActionNotificationReceiver, pbAddActionNotificationReceiver>(
        "addActionNotificationReceiver"),
    operation<&PushButton::removeActionNotificationReceiver, pbRemoveActionNotificationReceiver>(
        "removeActionNotificationReceiver"),
    operation<&PushButton::Push, pushButtonPush>("Push"),
    operation<&PushButton::_MouseDown, mouse_down>("_MouseDown"),
    operation<&PushButton::_MouseDrag, mouse_drag>("_MouseDrag"),
    operation<&PushButton::_MouseUp, mouse_up>("_MouseUp"),
    operation<&PushButton::_CallAction, call_action>("_CallAction"),
    operation<&PushButton::_GotFocus, got_focus>("_GotFocus"),
    operation<&PushButton::_LostFocus, lost_focus>("_LostFocus"),
    overrides<PushButton, &RectControl::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&PushButton::Caption, &PushButton::set_Caption>("Caption"),
    property<&PushButton::Default, &PushButton::set_Default>("Default"),
    property<&PushButton::Cancel, &PushButton::set_Cancel>("Cancel"),
    property<&PushButton::TextFont, &PushButton::set_TextFont>("TextFont"),
    property<&PushButton::TextSize, &PushButton::set_TextSize>("TextSize"),
    property<&PushButton::Bold, &PushButton::set_Bold>("Bold"),
    property<&PushButton::Italic, &PushButton::set_Italic>("Italic"),
    property<&PushButton::Underline, &PushButton::set_Underline>("Underline"),
};

constexpr EventRow kEvents[] = {
    event("Action", PushButton::Events::Action),       event("MouseDown", PushButton::Events::MouseDown),
    event("MouseUp", PushButton::Events::MouseUp),     event("GotFocus", PushButton::Events::GotFocus),
    event("LostFocus", PushButton::Events::LostFocus),
};

constexpr HandlerRow kHandlers[] = {
    handles<&PushButton::Event_CreatePane>("CreatePane", Control::Events::CreatePane),
};

constexpr InterfaceRow kInterfaces[] = {
    implements<actionSource, &PushButton::addActionNotificationReceiver,
               &PushButton::removeActionNotificationReceiver>(),
    implements<_MouseEvents, &PushButton::_MouseDown, &PushButton::_MouseDrag, &PushButton::_MouseUp>(),
    implements<_FocusEvents, &PushButton::_GotFocus, &PushButton::_LostFocus>(),
};

}  // namespace

const ClassDefinition& PushButton::definition() {
    static constexpr ClassDefinition kDefinition = define<PushButton>({
        .exit = exit_forwards_to<PushButton, PushButtonDestructor>,
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
        .handlers = kHandlers,
        .interfaces = kInterfaces,
    });
    return kDefinition;
}

}  // namespace tavrik
