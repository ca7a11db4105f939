#pragma once

#include "runtime/class.h"

#include <tavrik/window.h>

namespace tavrik {

struct Control;
struct Dictionary;
struct DockItem;
struct DragItem;
struct Graphics;
struct MenuBar;
struct MenuItem;
struct MouseCursor;
struct Picture;
struct RectControl;
struct _Pane;
struct _WindowImp;

// A top-level window. The toolkit holds it from its construction until it is closed.
struct Window : Class<Window> {
    static const ClassDefinition& definition();

    void Show() { dispatch<&Window::Show>(this); }
    // Above the other window, as a sheet of it if that is the frame.
    void ShowWithin(Arg<Window> other, std::int32_t side) { dispatch<&Window::ShowWithin>(this, other, side); }
    // These two return once the window is closed or hidden.
    void ShowModalWithin(Arg<Window> other) { dispatch<&Window::ShowModalWithin>(this, other); }
    void Hide() { dispatch<&Window::Hide>(this); }
    // Asks the window to close, and ends it if it agrees.
    void Close() { dispatch<&Window::Close>(this); }
    void Refresh(bool erase) { dispatch<&Window::Refresh>(this, erase); }
    void RefreshRect(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height, bool erase) {
        dispatch<&Window::RefreshRect>(this, left, top, width, height, erase);
    }
    void ShowModal() { dispatch<&Window::ShowModal>(this); }
    Ref<DragItem> NewDragItem(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
        return dispatch<&Window::NewDragItem>(this, left, top, width, height);
    }
    void AcceptTextDrop() { dispatch<&Window::AcceptTextDrop>(this); }
    void AcceptPictureDrop() { dispatch<&Window::AcceptPictureDrop>(this); }
    void AcceptFileDrop(const String& type) { dispatch<&Window::AcceptFileDrop>(this, type); }
    void AcceptMacDataDrop(const String& type) { dispatch<&Window::AcceptMacDataDrop>(this, type); }
    void AcceptRawDataDrop(const String& type) { dispatch<&Window::AcceptRawDataDrop>(this, type); }
    Ref<tavrik::Control> Control(std::int32_t position) { return dispatch<&Window::Control>(this, position); }
    // Takes the focus from the control that has it.
    void SetFocus() { dispatch<&Window::SetFocus>(this); }
    void DrawInto(Arg<tavrik::Graphics> graphics, std::int32_t left, std::int32_t top, bool content_only) {
        dispatch<&Window::DrawInto>(this, graphics, left, top, content_only);
    }
    void _DrawBackground(Arg<tavrik::Graphics> graphics, std::int32_t left, std::int32_t top, std::int32_t width,
                         std::int32_t height, std::int32_t from_left, std::int32_t from_top) {
        dispatch<&Window::_DrawBackground>(this, graphics, left, top, width, height, from_left, from_top);
    }
    void UpdateNow() { dispatch<&Window::UpdateNow>(this); }
    void _AddControl(const String& name, Arg<Object> control) { dispatch<&Window::_AddControl>(this, name, control); }
    void _AddMenuHandler(const String& item, Function handler) {
        dispatch<&Window::_AddMenuHandler>(this, item, handler);
    }
    // The constructor.
    void Window_() { dispatch<&Window::Window_>(this); }
    WindowPtr Operator_Convert() { return dispatch<&Window::Operator_Convert>(this); }
    // A new object of a class.
    Ref<Object> __New(ClassRecord* of_class) { return dispatch<&Window::__New>(this, of_class); }
    void _Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
        dispatch<&Window::_Move>(this, left, top, width, height);
    }
    void Maximize() { dispatch<&Window::Maximize>(this); }
    void Minimize() { dispatch<&Window::Minimize>(this); }
    void Restore() { dispatch<&Window::Restore>(this); }
    // For a subclass to fill: what a window that is in the dirty set does at the end of the event.
    void _Update() { dispatch<&Window::_Update>(this); }
    void _CallMoved() { dispatch<&Window::_CallMoved>(this); }
    // Raises EnableMenuItems, then enables the items that have a handler here. Turns nothing off.
    void _EnableMenuItems(Arg<ArrayOf<MenuItem>> items) { dispatch<&Window::_EnableMenuItems>(this, items); }
    void _CallActivated() { dispatch<&Window::_CallActivated>(this); }
    void _CallDeactivated() { dispatch<&Window::_CallDeactivated>(this); }
    bool _HandleMenuCommand(Arg<MenuItem> item) { return dispatch<&Window::_HandleMenuCommand>(this, item); }
    // The close protocol: asks CancelClose, then closes the controls and forgets them. Whether the window is closing.
    bool _UnifiedClose(bool app_is_quitting) { return dispatch<&Window::_UnifiedClose>(this, app_is_quitting); }
    bool _CallMouseDown(std::int32_t x, std::int32_t y) { return dispatch<&Window::_CallMouseDown>(this, x, y); }
    void _CallResized() { dispatch<&Window::_CallResized>(this); }
    void _CallResizing() { dispatch<&Window::_CallResizing>(this); }
    // Forgets the control under all its names.
    void _RemoveControl(Arg<tavrik::Control> control) { dispatch<&Window::_RemoveControl>(this, control); }
    void _MouseEnter() { dispatch<&Window::_MouseEnter>(this); }
    void _MouseExit() { dispatch<&Window::_MouseExit>(this); }
    void _MouseMove(std::int32_t x, std::int32_t y) { dispatch<&Window::_MouseMove>(this, x, y); }
    void _Paint(Arg<tavrik::Graphics> graphics) { dispatch<&Window::_Paint>(this, graphics); }
    bool _MouseWheel(std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
        return dispatch<&Window::_MouseWheel>(this, x, y, delta_x, delta_y);
    }
    bool _KeyDown(const String& key) { return dispatch<&Window::_KeyDown>(this, key); }
    void __DependencyList() { dispatch<&Window::__DependencyList>(this); }

    Ref<Object> _GetControl(const String& name) { return RuntimeControlReference(this, name); }
    Ref<Object> _GetControlArray(const String& name, std::int32_t index) {
        return RuntimeControlArrayItemReference(this, name, index);
    }

    // The set of windows that wait for an update. Each is in it once, and updating them ends the set.
    static void _UpdateDirtyWindows();
    static void _AddDirtyWindow(Arg<Window> window);
    static void _RemoveDirtyWindow(Arg<Window> window);

    bool Visible() { return WindowVisibleGetter(this, 0); }
    void set_Visible(bool visible) { WindowVisibleSetter(this, 0, visible); }
    std::int32_t Left() { return windowPosGetter(this, 0); }
    void set_Left(std::int32_t left) { windowPosSetter(this, 0, left); }
    std::int32_t Top() { return windowPosGetter(this, 1); }
    void set_Top(std::int32_t top) { windowPosSetter(this, 1, top); }
    std::int32_t Width() { return windowPosGetter(this, 2); }
    void set_Width(std::int32_t width) { windowPosSetter(this, 2, width); }
    std::int32_t Height() { return windowPosGetter(this, 3); }
    void set_Height(std::int32_t height) { windowPosSetter(this, 3, height); }
    std::int32_t Placement() { return windowPlacementGetter(this, 0); }
    void set_Placement(std::int32_t placement) { windowPlacementSetter(this, 0, placement); }
    String Title() { return windowTitleGetter(this, 0); }
    void set_Title(const String& title) { windowTitleSetter(this, 0, title); }
    bool FullScreen() { return windowFullScreenGetter(this, 0); }
    void set_FullScreen(bool full_screen) { windowFullScreenSetter(this, 0, full_screen); }
    bool MenuBarVisible() { return windowMenusVisibleGetter(this, 0); }
    void set_MenuBarVisible(bool visible) { windowMenusVisibleSetter(this, 0, visible); }
    // Pairs of names for one value each.
    bool CloseBox() { return windowCloseBoxGetter(this, 0); }
    void set_CloseBox(bool has) { windowCloseBoxSetter(this, 0, has); }
    bool CloseButton() { return windowCloseBoxGetter(this, 0); }
    void set_CloseButton(bool has) { windowCloseBoxSetter(this, 0, has); }
    bool GrowIcon() { return windowGrowIconGetter(this, 0); }
    void set_GrowIcon(bool has) { windowGrowIconSetter(this, 0, has); }
    bool Resizeable() { return windowGrowIconGetter(this, 0); }
    void set_Resizeable(bool can) { windowGrowIconSetter(this, 0, can); }
    bool ZoomIcon() { return windowZoomIconGetter(this, 0); }
    void set_ZoomIcon(bool has) { windowZoomIconSetter(this, 0, has); }
    bool MaximizeButton() { return windowZoomIconGetter(this, 0); }
    void set_MaximizeButton(bool has) { windowZoomIconSetter(this, 0, has); }
    bool MinimizeButton() { return mMinimizeButton; }
    void set_MinimizeButton(bool has) { mMinimizeButton = has; }
    std::int32_t Frame() { return windowFrameGetter(this, 0); }
    void set_Frame(std::int32_t frame) { windowFrameSetter(this, 0, frame); }
    bool Composite() { return mComposite; }
    void set_Composite(bool composite) { mComposite = composite; }
    bool LiveResize() { return windowLiveResizeGetter(this, 0); }
    void set_LiveResize(bool live) { windowLiveResizeSetter(this, 0, live); }
    bool HasBackColor() { return windowHasBackColorGetter(this, 0); }
    void set_HasBackColor(bool has) { windowHasBackColorSetter(this, 0, has); }
    Color BackColor() { return windowBackColorGetter(this, 0); }
    void set_BackColor(Color color) { windowBackColorSetter(this, 0, color); }
    Ref<Picture> Backdrop() { return static_ref<Picture>(windowBackdropGetter(this, 0)); }
    void set_Backdrop(Arg<Picture> picture) { windowBackdropSetter(this, 0, picture.object()); }
    Ref<tavrik::Graphics> Graphics() { return static_ref<tavrik::Graphics>(windowGraphicsGetter(this, 0)); }
    String BalloonHelp() { return mBalloonHelp; }
    void set_BalloonHelp(const String& help);
    std::int32_t MinWidth() { return windowMinMaxWidthHeightGetter(this, 0); }
    void set_MinWidth(std::int32_t width) { windowMinMaxWidthHeightSetter(this, 0, width); }
    std::int32_t MinHeight() { return windowMinMaxWidthHeightGetter(this, 1); }
    void set_MinHeight(std::int32_t height) { windowMinMaxWidthHeightSetter(this, 1, height); }
    std::int32_t MaxWidth() { return windowMinMaxWidthHeightGetter(this, 2); }
    void set_MaxWidth(std::int32_t width) { windowMinMaxWidthHeightSetter(this, 2, width); }
    std::int32_t MaxHeight() { return windowMinMaxWidthHeightGetter(this, 3); }
    void set_MaxHeight(std::int32_t height) { windowMinMaxWidthHeightSetter(this, 3, height); }
    std::int32_t MacProcId() { return mMacProcId; }
    void set_MacProcId(std::int32_t id) { mMacProcId = id; }
    Ref<tavrik::MouseCursor> MouseCursor() { return mMouseCursor; }
    void set_MouseCursor(Arg<tavrik::MouseCursor> cursor);
    std::int32_t ControlCount() { return windowControlCountGetter(this, 0); }
    String FloaterProcess() { return mFloaterProcess; }
    void set_FloaterProcess(const String& process) { mFloaterProcess = process; }
    std::int32_t MouseX() { return windowMouseXGetter(this, 0); }
    std::int32_t MouseY() { return windowMouseYGetter(this, 0); }
    std::int32_t MacWindowPtr() { return windowWindowPtrGetter(this, 0); }
    std::int32_t WinHWND() { return windowHWNDGetter(this, 0); }
    std::int32_t Handle() { return WindowHandleGetter(this, 0); }
    Ref<tavrik::DockItem> DockItem() { return static_ref<tavrik::DockItem>(WindowDockItemGetter(this, 0)); }
    Ref<tavrik::MenuBar> MenuBar() { return static_ref<tavrik::MenuBar>(WindowMenuBarGetter(this, 0)); }
    void set_MenuBar(Arg<tavrik::MenuBar> bar) { WindowMenuBarSetter(this, 0, bar.object()); }

    Ref<RectControl> Focus() { return static_ref<RectControl>(WindowFocusGetter(this, 0)); }
    void set_Focus(Arg<RectControl> control) { WindowFocusSetter(this, 0, control.object()); }

    struct Events {
        static inline constinit Event<void()> Layout, CreateControls, SetupBindings, Open, Close;
        static inline constinit Event<void(Arg<Window>)> AddMenuHandlers;
        static inline constinit Event<bool(bool)> CancelClose;
        static inline constinit Event<bool(const String&)> KeyDown;
        static inline constinit Event<void(std::int32_t, std::int32_t)> MouseMove, MouseDrag, MouseUp;
        static inline constinit Event<void()> MouseEnter, MouseExit;
        static inline constinit Event<void(Arg<tavrik::Graphics>)> Paint;
        static inline constinit Event<bool(std::int32_t, std::int32_t)> MouseDown;
        static inline constinit Event<void()> EnableMenuItems, Resized, Resizing, Moved;
        static inline constinit Event<void(Arg<DragItem>, std::int32_t)> DropObject;
        static inline constinit Event<void()> Activate, Deactivate, Minimize, Maximize, Restore;
        static inline constinit Event<bool(std::int32_t, std::int32_t, std::int32_t, std::int32_t)> MouseWheel;
        static inline constinit Event<bool(Arg<MenuItem>, std::int32_t, std::int32_t)> ConstructContextualMenu;
        static inline constinit Event<bool(Arg<MenuItem>)> ContextualMenuAction;
        static inline constinit Event<bool(Arg<DragItem>)> DragEnter;
        static inline constinit Event<void(Arg<DragItem>)> DragExit;
        static inline constinit Event<bool(std::int32_t, std::int32_t, Arg<DragItem>)> DragOver;
    };

    Field<_WindowImp> _mImp;
    Field<Dictionary> _mControls;
    Field<Dictionary> _mMenuHandlers;
    Field<ArrayOf<tavrik::Control>> _mControlList;
    Field<_Pane> _mContentPane;
    Field<RectControl> _mFocusControl;
    std::int32_t _mInitialControlsCreated;

    bool mMinimizeButton;
    bool mComposite;
    StringField mBalloonHelp;
    std::int32_t mMacProcId;
    Field<tavrik::MouseCursor> mMouseCursor;
    StringField mFloaterProcess;
};

// The first thing that a handler installed for a control calls, on two of its locals: it was entered with the control
// as its self. Afterwards `me` is that object, and `self` its window; an object that is neither a control nor a
// _PaneChild stays self.
void RuntimeSwapSelfAndMe(Ref<Object>& self, Ref<Object>& me);

// The control of that name, for the accessors that a window declares for its controls.
Ref<Object> RuntimeWindowControlByName(Object* window, const String& name);
// The element of a control array.
Ref<Object> RuntimeWindowControlByNameIndex(Object* window, const String& name, std::int32_t index);

}  // namespace tavrik
