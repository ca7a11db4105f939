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

Ref<Object> RuntimeWindowControlByNameIndex(Object* window, const String& name, std::int32_t index) {
    return RuntimeControlArrayItemReference(window, name, index);
}

void Window::set_BalloonHelp(const String& help) {
    windowBalloonHelpSetter(this, detail::FieldEntry<&Window::mBalloonHelp>::offset(), help);
}

void Window::set_MouseCursor(Arg<tavrik::MouseCursor> cursor) {
    formMouseCursorSetter(this, detail::FieldEntry<&Window::mMouseCursor>::offset(), cursor.object());
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

void remove_from_list(Window* self, Arg<Control> control) {
    const std::int32_t index = self->_mControlList->index_of(control);
    if (index >= 0) self->_mControlList->remove(index);
}

void remove_control(Window* self, Arg<Control> control) {
    const Frame frame(self, control);
    remove_from_list(self, control);
    const Ref<ArrayOf<Variant>> keys = self->_mControls->Keys();
    for (std::int32_t i = 0; i <= keys->upper_bound(); ++i) {
        const Ref<Variant> name = StringToVariant(VariantToString(keys->at(i).object()));
        if (self->_mControls->Value(name).object() == control.object()) self->_mControls->Remove(name);
        RuntimeBackgroundTask();
    }
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

template <const Event<void()>& Raised>
void raise(Window* self) {
    const Frame frame(self);
    Raised.raise(self);
}

bool call_mouse_down(Window* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    return Window::Events::MouseDown.raise(self, x, y);
}

void mouse_move(Window* self, std::int32_t x, std::int32_t y) {
    const Frame frame(self);
    Window::Events::MouseMove.raise(self, x, y);
}

void paint(Window* self, Arg<Graphics> graphics) {
    const Frame frame(self, graphics);
    Window::Events::Paint.raise(self, graphics);
}

bool mouse_wheel(Window* self, std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
    const Frame frame(self);
    return Window::Events::MouseWheel.raise(self, x, y, delta_x, delta_y);
}

bool key_down(Window* self, const String& key) {
    const Frame frame(self, key);
    return Window::Events::KeyDown.raise(self, key);
}

bool handle_menu_command(Window* self, Arg<MenuItem> item) {
    const Frame frame(self, item);
    return false;
}

constexpr OperationRow kOperations[] = {
    operation<&Window::Show, RuntimeShowWindow>("Show"),
    operation<&Window::ShowWithin, RuntimeShowWithinWindow>("ShowWithin"),
    operation<&Window::ShowModalWithin, RuntimeShowModalWithinWindow>("ShowModalWithin"),
    operation<&Window::Hide, RuntimeHideWindow>("Hide"),
    operation<&Window::Close, RuntimeCloseWindow>("Close"),
    operation<&Window::Refresh, formRefresh>("Refresh"),
    operation<&Window::RefreshRect, formRefreshRect>("RefreshRect"),
    operation<&Window::ShowModal, RuntimeShowModal>("ShowModal"),
    operation<&Window::NewDragItem, formNewDragItem>("NewDragItem"),
    operation<&Window::AcceptTextDrop, formAcceptTextDrop>("AcceptTextDrop"),
    operation<&Window::AcceptPictureDrop, formAcceptPictureDrop>("AcceptPictureDrop"),
    operation<&Window::AcceptFileDrop, formAcceptFileDrop>("AcceptFileDrop"),
    operation<&Window::AcceptMacDataDrop, formAcceptMacDataDrop>("AcceptMacDataDrop"),
    operation<&Window::AcceptRawDataDrop, formAcceptMacDataDrop>("AcceptRawDataDrop"),
    operation<&Window::Control, windowControl>("Control"),
    operation<&Window::SetFocus, formSetFocus>("SetFocus"),
    operation<&Window::DrawInto, formDrawInto>("DrawInto"),
    operation<&Window::_DrawBackground, formDrawBackground>("_DrawBackground"),
    operation<&Window::UpdateNow, WindowForceUpdateFrontBuffer>("UpdateNow"),
    operation<&Window::_AddControl, WindowAddControl>("_AddControl"),
    operation<&Window::_AddMenuHandler, WindowAddMenuHandler>("_AddMenuHandler"),
    operation<&Window::Window_, WindowDefaultConstructor>("Window"),
    operation<&Window::Operator_Convert, WindowToWindowPtr>("Operator_Convert"),
    operation<&Window::__New, WindowAllocateObject>("__New"),
    operation<&Window::_Move, WindowMove>("_Move"),
    operation<&Window::Maximize, WindowMaximize>("Maximize"),
    operation<&Window::Minimize, WindowMinimize>("Minimize"),
    operation<&Window::Restore, WindowRestore>("Restore"),
    operation<&Window::_Update, no_effect>("_Update"),
    operation<&Window::_CallMoved, raise<Window::Events::Moved>>("_CallMoved"),
    operation<&Window::_EnableMenuItems, enable_menu_items>("_EnableMenuItems"),
    operation<&Window::_CallActivated, call_activated>("_CallActivated"),
    operation<&Window::_CallDeactivated, call_deactivated>("_CallDeactivated"),
    operation<&Window::_HandleMenuCommand, handle_menu_command>("_HandleMenuCommand"),
    operation<&Window::_UnifiedClose, unified_close>("_UnifiedClose"),
    operation<&Window::_CallMouseDown, call_mouse_down>("_CallMouseDown"),
    operation<&Window::_CallResized, raise<Window::Events::Resized>>("_CallResized"),
    operation<&Window::_CallResizing, raise<Window::Events::Resizing>>("_CallResizing"),
    operation<&Window::_RemoveControl, remove_control>("_RemoveControl"),
    operation<&Window::_MouseEnter, raise<Window::Events::MouseEnter>>("_MouseEnter"),
    operation<&Window::_MouseExit, raise<Window::Events::MouseExit>>("_MouseExit"),
    operation<&Window::_MouseMove, mouse_move>("_MouseMove"),
    operation<&Window::_Paint, paint>("_Paint"),
    operation<&Window::_MouseWheel, mouse_wheel>("_MouseWheel"),
    operation<&Window::_KeyDown, key_down>("_KeyDown"),
    operation<&Window::__DependencyList, no_effect>("__DependencyList").not_public(),
    method<&Window::_GetControl, RuntimeWindowControlByName>("_GetControl"),
    method<&Window::_GetControlArray, RuntimeWindowControlByNameIndex>("_GetControlArray"),
    shared<&Window::_UpdateDirtyWindows>("_UpdateDirtyWindows"),
    shared<&Window::_AddDirtyWindow>("_AddDirtyWindow"),
    shared<&Window::_RemoveDirtyWindow>("_RemoveDirtyWindow"),
    shared<RuntimeSwapSelfAndMe>("SwapSelfAndMe").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&Window::_mImp>("_mImp"),
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
    property<&Window::Backdrop, &Window::set_Backdrop>("Backdrop"),
    property<&Window::Graphics, ignored>("Graphics"),
    property<&Window::HasBackColor, &Window::set_HasBackColor>("HasBackColor"),
    property<&Window::BackColor, &Window::set_BackColor>("BackColor"),
    stored<&Window::mBalloonHelp, windowBalloonHelpSetter>("BalloonHelp"),
    property<&Window::MinWidth, &Window::set_MinWidth>("MinWidth"),
    property<&Window::MinHeight, &Window::set_MinHeight>("MinHeight"),
    property<&Window::MaxWidth, &Window::set_MaxWidth>("MaxWidth"),
    property<&Window::MaxHeight, &Window::set_MaxHeight>("MaxHeight"),
    stored<&Window::mMacProcId>("MacProcId"),
    stored<&Window::mMouseCursor, formMouseCursorSetter>("MouseCursor"),
    property<&Window::ControlCount>("ControlCount"),
    stored<&Window::mFloaterProcess>("FloaterProcess"),
    property<&Window::MouseX>("MouseX"),
    property<&Window::MouseY>("MouseY"),
    property<&Window::MacWindowPtr>("MacWindowPtr"),
    property<&Window::WinHWND>("WinHWND"),
    property<&Window::Handle>("Handle"),
    property<&Window::DockItem, ignored>("DockItem"),
    property<&Window::MenuBar, &Window::set_MenuBar>("MenuBar"),
    property<&Window::Focus, &Window::set_Focus>("Focus"),
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
