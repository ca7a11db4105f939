#pragma once

#include "runtime/class.h"
#include "ui/input_interfaces.h"

namespace tavrik {

struct Control;
struct DragItem;
struct Graphics;
struct MenuItem;
struct MouseCursor;
struct Window;
struct _PaneImp;

// The geometry and event-routing side of a control: it decides whether an event goes to its control or to its window.
struct _Pane : Class<_Pane> {
    static const ClassDefinition& definition();

    // For a subclass to make its native side and store it in mImp.
    void CreateImp() { dispatch<&_Pane::CreateImp>(this); }
    void Destructor() { dispatch<&_Pane::Destructor>(this); }
    void HandleGotFocus() { dispatch<&_Pane::HandleGotFocus>(this); }
    void HandleLostFocus() { dispatch<&_Pane::HandleLostFocus>(this); }
    bool AcceptFocus(bool& accepts) { return dispatch<&_Pane::AcceptFocus>(this, accepts); }
    // In coordinates of this pane. The third number, the button, isn't looked at.
    bool HandleMouseDown(std::int32_t x, std::int32_t y, std::int32_t button) {
        return dispatch<&_Pane::HandleMouseDown>(this, x, y, button);
    }
    void HandleMouseDrag(std::int32_t x, std::int32_t y) { dispatch<&_Pane::HandleMouseDrag>(this, x, y); }
    void HandleMouseUp(std::int32_t x, std::int32_t y) { dispatch<&_Pane::HandleMouseUp>(this, x, y); }
    // In coordinates of the parent. Tells enter, exit and move, and goes on to all children.
    void HandleMouseMove(std::int32_t x, std::int32_t y) { dispatch<&_Pane::HandleMouseMove>(this, x, y); }
    void HandleMouseEnter() { dispatch<&_Pane::HandleMouseEnter>(this); }
    void HandleMouseExit() { dispatch<&_Pane::HandleMouseExit>(this); }
    bool HandleMouseWheel(std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
        return dispatch<&_Pane::HandleMouseWheel>(this, x, y, delta_x, delta_y);
    }
    bool HandleKeyDown(const String& key, std::int32_t code, std::int32_t modifiers) {
        return dispatch<&_Pane::HandleKeyDown>(this, key, code, modifiers);
    }
    void Close() { dispatch<&_Pane::Close>(this); }
    bool DragEnter(Arg<DragItem> item) { return dispatch<&_Pane::DragEnter>(this, item); }
    void DragExit(Arg<DragItem> item) { dispatch<&_Pane::DragExit>(this, item); }
    bool DragOver(std::int32_t x, std::int32_t y, Arg<DragItem> item) {
        return dispatch<&_Pane::DragOver>(this, x, y, item);
    }
    bool IsRootControl() { return dispatch<&_Pane::IsRootControl>(this); }
    void Refresh(bool erase) { dispatch<&_Pane::Refresh>(this, erase); }
    void RefreshRect(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height, bool erase) {
        dispatch<&_Pane::RefreshRect>(this, x, y, width, height, erase);
    }
    void Invalidate() { dispatch<&_Pane::Invalidate>(this); }
    void InvalidateRect(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
        dispatch<&_Pane::InvalidateRect>(this, x, y, width, height);
    }
    void DrawInto(Arg<tavrik::Graphics> graphics, std::int32_t x, std::int32_t y) {
        dispatch<&_Pane::DrawInto>(this, graphics, x, y);
    }
    void HandleActivate() { dispatch<&_Pane::HandleActivate>(this); }
    void HandleDeactivate() { dispatch<&_Pane::HandleDeactivate>(this); }
    void EnableMenuItems(Arg<ArrayOf<MenuItem>> items) { dispatch<&_Pane::EnableMenuItems>(this, items); }
    bool HandleMenuCommand(Arg<MenuItem> item) { return dispatch<&_Pane::HandleMenuCommand>(this, item); }
    // A new pane takes over from the one that the control has, if any.
    void Constructor(Arg<tavrik::Control> control) { dispatch<&_Pane::Constructor>(this, control); }
    std::int32_t Handle() { return dispatch<&_Pane::Handle>(this); }
    void SetFocus() { dispatch<&_Pane::SetFocus>(this); }
    // Any number of calls keep ResizeControl from the native side until as many have ended it.
    void SuppressResizing() { dispatch<&_Pane::SuppressResizing>(this); }
    void UnsuppressResizing() { dispatch<&_Pane::UnsuppressResizing>(this); }
    void ResizeControl() { dispatch<&_Pane::ResizeControl>(this); }
    // Moves and resizes the children by how much this pane has changed.
    void HonorControlLocking(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
        dispatch<&_Pane::HonorControlLocking>(this, left, top, width, height);
    }
    void Paint(Arg<tavrik::Graphics> graphics) { dispatch<&_Pane::Paint>(this, graphics); }
    Ref<tavrik::Graphics> Graphics() { return dispatch<&_Pane::Graphics>(this); }
    bool CanAcceptFocus(bool& can) { return dispatch<&_Pane::CanAcceptFocus>(this, can); }
    std::int32_t ChildCount() { return dispatch<&_Pane::ChildCount>(this); }
    Ref<_Pane> Child(std::int32_t position) { return dispatch<&_Pane::Child>(this, position); }
    void EnableDisable() { dispatch<&_Pane::EnableDisable>(this); }
    void AddToParentPane() { dispatch<&_Pane::AddToParentPane>(this); }
    void Open() { dispatch<&_Pane::Open>(this); }

    Ref<tavrik::Window> Window() { return mWindow; }
    void set_Window(Arg<tavrik::Window> window);
    bool Enabled() { return mEnabled; }
    void set_Enabled(bool enabled);
    std::int32_t Height() { return mHeight; }
    void set_Height(std::int32_t height);
    std::int32_t Left() { return mLeft; }
    void set_Left(std::int32_t left);
    Ref<_Pane> Parent() { return mParent; }
    // Changes nothing: the native side keeps the tree.
    void set_Parent(Arg<_Pane>) {}
    bool TabPanelVisible() { return mTabPanelVisible; }
    void set_TabPanelVisible(bool visible) { mTabPanelVisible = visible; }
    std::int32_t Top() { return mTop; }
    void set_Top(std::int32_t top);
    bool Visible() { return mVisible; }
    void set_Visible(bool visible);
    std::int32_t Width() { return mWidth; }
    void set_Width(std::int32_t width);
    Ref<tavrik::Control> Control() { return mControl; }
    void set_Control(Arg<tavrik::Control> control) { mControl = control; }
    std::int32_t PanelIndex() { return mPanelIndex; }
    void set_PanelIndex(std::int32_t index) { mPanelIndex = index; }
    Ref<MouseCursor> Cursor() { return mCursor; }
    void set_Cursor(Arg<MouseCursor> cursor);

    // Relative to the parent pane.
    std::int32_t mLeft, mTop, mWidth, mHeight;
    bool mVisible, mEnabled, mTabPanelVisible;
    Field<tavrik::Window> mWindow;
    Field<_Pane> mParent;
    Field<ArrayOf<_Pane>> mChildren;
    Field<_PaneImp> mImp;
    Field<tavrik::Control> mControl;
    StringField Name;
    std::int32_t Index;
    std::int32_t mPanelIndex;
    bool mMouseWasInBounds;
    std::int32_t mSuppressionLevel;
    bool LockLeft, LockTop, LockBottom, LockRight;
    Field<MouseCursor> mCursor;
};

}  // namespace tavrik
