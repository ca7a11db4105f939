#include "ui/window.h"

#include "data/dictionary.h"
#include "introspection/introspection.h"
#include "runtime/frame.h"
#include "runtime/tavrik_module.h"
#include "ui/control.h"
#include "ui/menu_bar.h"
#include "ui/menu_item.h"
#include "ui/window_support.h"

namespace tavrik {

Ref<Object> RuntimeWindowControlByName(Object* window, const String& name) {
    return RuntimeControlReference(window, name);
}

namespace {

void close_controls(Window* self) {
    const Ref<ArrayOf<Variant>> controls = self->_mControls->Values();
    for (std::int32_t i = 0; i <= controls->upper_bound(); ++i) {
        const Ref<Variant> control = controls->at(i);
        if (is_a<Control>(control)) check_cast<Control>(control)->Close();
        RuntimeBackgroundTask();
    }
}

void leave_window_list(Window* self) {
    const auto windows = Ref<ArrayOf<Window>>::hold(_WindowSupport::Windows);
    for (std::int32_t i = 0; i <= windows->upper_bound(); ++i) {
        if (windows->at(i).object() == self) return windows->remove(i);
        RuntimeBackgroundTask();
    }
}

void leave_implicit_windows(Window* self) {
    const Ref<Introspection::TypeInfo> type = Introspection::GetType(self);
    if (Tavrik::_mImplicitWindowList == nullptr) return;
    const auto implicit = Ref<Dictionary>::hold(Tavrik::_mImplicitWindowList);
    const Ref<Variant> key = StringToVariant(type->Name());
    if (implicit->Lookup(key, nullptr).object() == self) implicit->Remove(key);
}

bool unified_close(Window* self, bool app_is_quitting) {
    const Frame frame(self);
    if (Window::Events::CancelClose.raise(self, app_is_quitting)) return false;
    close_controls(self);
    self->_mControls = nullptr;
    self->_mControlList->resize(-1);
    leave_window_list(self);
    leave_implicit_windows(self);
    return true;
}

void enable_menu_items(Window* self, Arg<ArrayOf<MenuItem>> items) {
    const Frame frame(self, items);
    Window::Events::EnableMenuItems.raise(self);
    enable_handled(items, self->_mMenuHandlers);
}

void call_activated(Window* self) {
    const Frame frame(self);
    Window::Events::Activate.raise(self);
    Tavrik::EnableMenuItems();
}

void call_deactivated(Window* self) {
    const Frame frame(self);
    Window::Events::Deactivate.raise(self);
    Tavrik::EnableMenuItems();
}

void call_moved(Window* self) {
    const Frame frame(self);
    Window::Events::Moved.raise(self);
}

void call_resized(Window* self) {
    const Frame frame(self);
    Window::Events::Resized.raise(self);
}

bool handle_menu_command(Window* self, Arg<MenuItem> item) {
    const Frame frame(self, item);
    return false;
}

constexpr OperationRow kOperations[] = {
    operation<&Window::Show, RuntimeShowWindow>("Show"),
    operation<&Window::Hide, RuntimeHideWindow>("Hide"),
    operation<&Window::Close, RuntimeCloseWindow>("Close"),
    operation<&Window::Control, windowControl>("Control"),
    operation<&Window::_AddControl, WindowAddControl>("_AddControl"),
    operation<&Window::_AddMenuHandler, WindowAddMenuHandler>("_AddMenuHandler"),
    operation<&Window::Window_, WindowDefaultConstructor>("Window"),
    operation<&Window::__New, WindowAllocateObject>("__New"),
    operation<&Window::_CallMoved, call_moved>("_CallMoved"),
    operation<&Window::_EnableMenuItems, enable_menu_items>("_EnableMenuItems"),
    operation<&Window::_CallActivated, call_activated>("_CallActivated"),
    operation<&Window::_CallDeactivated, call_deactivated>("_CallDeactivated"),
    operation<&Window::_HandleMenuCommand, handle_menu_command>("_HandleMenuCommand"),
    operation<&Window::_UnifiedClose, unified_close>("_UnifiedClose"),
    operation<&Window::_CallResized, call_resized>("_CallResized"),
    operation<&Window::__DependencyList, no_effect>("__DependencyList").not_public(),
    method<&Window::_GetControl, RuntimeWindowControlByName>("_GetControl"),
    shared<RuntimeSwapSelfAndMe>("SwapSelfAndMe").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&Window::_mControls>("_mControls"),
    field<&Window::_mMenuHandlers>("_mMenuHandlers"),
    field<&Window::_mControlList>("_mControlList"),
    field<&Window::_mContentPane>("_mContentPane"),
    field<&Window::_mFocusControl>("_mFocusControl"),
    field<&Window::_mInitialControlsCreated>("_mInitialControlsCreated"),
};

constexpr PropertyRow kProperties[] = {
    property<&Window::Visible, &Window::set_Visible>("Visible"),
    property<&Window::Left, &Window::set_Left>("Left"),
    property<&Window::Top, &Window::set_Top>("Top"),
    property<&Window::Width, &Window::set_Width>("Width"),
    property<&Window::Height, &Window::set_Height>("Height"),
    property<&Window::Placement, &Window::set_Placement>("Placement"),
    property<&Window::Title, &Window::set_Title>("Title"),
    property<&Window::FullScreen, &Window::set_FullScreen>("FullScreen"),
    property<&Window::MenuBarVisible, &Window::set_MenuBarVisible>("MenuBarVisible"),
    property<&Window::CloseBox, &Window::set_CloseBox>("CloseBox"),
    property<&Window::CloseButton, &Window::set_CloseButton>("CloseButton"),
    property<&Window::GrowIcon, &Window::set_GrowIcon>("GrowIcon"),
    property<&Window::Resizeable, &Window::set_Resizeable>("Resizeable"),
    property<&Window::ZoomIcon, &Window::set_ZoomIcon>("ZoomIcon"),
    property<&Window::MaximizeButton, &Window::set_MaximizeButton>("MaximizeButton"),
    stored<&Window::mMinimizeButton>("MinimizeButton"),
    property<&Window::Frame, &Window::set_Frame>("Frame"),
    stored<&Window::mComposite>("Composite"),
    property<&Window::LiveResize, &Window::set_LiveResize>("LiveResize"),
    property<&Window::HasBackColor, &Window::set_HasBackColor>("HasBackColor"),
    property<&Window::BackColor, &Window::set_BackColor>("BackColor"),
    stored<&Window::mBalloonHelp, windowBalloonHelpSetter>("BalloonHelp"),
    property<&Window::MinWidth, &Window::set_MinWidth>("MinWidth"),
    property<&Window::MinHeight, &Window::set_MinHeight>("MinHeight"),
    property<&Window::MaxWidth, &Window::set_MaxWidth>("MaxWidth"),
    property<&Window::MaxHeight, &Window::set_MaxHeight>("MaxHeight"),
    stored<&Window::mMacProcId>("MacProcId"),
    property<&Window::ControlCount>("ControlCount"),
    property<&Window::MenuBar, &Window::set_MenuBar>("MenuBar"),
};

constexpr EventRow kEvents[] = {
    event("Layout", Window::Events::Layout),
    event("CreateControls", Window::Events::CreateControls),
    event("AddMenuHandlers", Window::Events::AddMenuHandlers),
    event("SetupBindings", Window::Events::SetupBindings),
    event("Open", Window::Events::Open),
    event("Close", Window::Events::Close),
    event("CancelClose", Window::Events::CancelClose),
    event("KeyDown", Window::Events::KeyDown),
    event("MouseMove", Window::Events::MouseMove),
    event("MouseEnter", Window::Events::MouseEnter),
    event("MouseExit", Window::Events::MouseExit),
    event("Paint", Window::Events::Paint),
    event("MouseDown", Window::Events::MouseDown),
    event("MouseDrag", Window::Events::MouseDrag),
    event("MouseUp", Window::Events::MouseUp),
    event("EnableMenuItems", Window::Events::EnableMenuItems),
    event("Resized", Window::Events::Resized),
    event("Resizing", Window::Events::Resizing),
    event("Moved", Window::Events::Moved),
    event("DropObject", Window::Events::DropObject),
    event("Activate", Window::Events::Activate),
    event("Deactivate", Window::Events::Deactivate),
    event("Minimize", Window::Events::Minimize),
    event("Maximize", Window::Events::Maximize),
    event("Restore", Window::Events::Restore),
    event("MouseWheel", Window::Events::MouseWheel),
    event("ConstructContextualMenu", Window::Events::ConstructContextualMenu),
    event("ContextualMenuAction", Window::Events::ContextualMenuAction),
    event("DragEnter", Window::Events::DragEnter),
    event("DragExit", Window::Events::DragExit),
    event("DragOver", Window::Events::DragOver),
};

}  // namespace

const ClassDefinition& Window::definition() {
    static constexpr ClassDefinition kDefinition = define<Window>({
        .init = init_forwards_to<Window, RuntimeCreateWindow>,
        .exit = exit_forwards_to<Window, RuntimeViewDestructor>,
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
