#pragma once

#include "ui/control.h"

namespace tavrik {

struct DragItem;
struct Graphics;
struct MenuItem;
struct MouseCursor;

// A control that has a rectangle.
struct RectControl : Class<RectControl, Control> {
    static const ClassDefinition& definition();

    void DrawInto(Arg<Graphics> graphics, std::int32_t x, std::int32_t y) {
        dispatch<&RectControl::DrawInto>(this, graphics, x, y);
    }
    void Refresh(bool erase) { dispatch<&RectControl::Refresh>(this, erase); }
    void RefreshRect(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height, bool erase) {
        dispatch<&RectControl::RefreshRect>(this, x, y, width, height, erase);
    }
    void SetFocus() { dispatch<&RectControl::SetFocus>(this); }
    void AcceptTextDrop() { dispatch<&RectControl::AcceptTextDrop>(this); }
    void AcceptPictureDrop() { dispatch<&RectControl::AcceptPictureDrop>(this); }
    void AcceptFileDrop(const String& types) { dispatch<&RectControl::AcceptFileDrop>(this, types); }
    void AcceptMacDataDrop(const String& type) { dispatch<&RectControl::AcceptMacDataDrop>(this, type); }
    void AcceptRawDataDrop(const String& type) { dispatch<&RectControl::AcceptRawDataDrop>(this, type); }
    Ref<DragItem> NewDragItem(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
        return dispatch<&RectControl::NewDragItem>(this, x, y, width, height);
    }
    // The handler is asked while this control has the focus.
    void _AddMenuHandler(const String& item, Function handler) {
        dispatch<&RectControl::_AddMenuHandler>(this, item, handler);
    }
    void Constructor() { dispatch<&RectControl::Constructor>(this); }
    // All four at once.
    void _Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
        dispatch<&RectControl::_Move>(this, left, top, width, height);
    }
    void _MouseEnter() { dispatch<&RectControl::_MouseEnter>(this); }
    void _MouseExit() { dispatch<&RectControl::_MouseExit>(this); }
    void _MouseMove(std::int32_t x, std::int32_t y) { dispatch<&RectControl::_MouseMove>(this, x, y); }
    bool _MouseWheel(std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
        return dispatch<&RectControl::_MouseWheel>(this, x, y, delta_x, delta_y);
    }
    void Invalidate(bool erase) { dispatch<pick<void(bool)>(&RectControl::Invalidate)>(this, erase); }
    void Invalidate(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height, bool erase) {
        dispatch<pick<InvalidateRect>(&RectControl::Invalidate)>(this, x, y, width, height, erase);
    }
    bool _KeyDown(const String& key) { return dispatch<&RectControl::_KeyDown>(this, key); }
    void __DependencyList() { dispatch<&RectControl::__DependencyList>(this); }
    void RectControl_() { dispatch<&RectControl::RectControl_>(this); }

    String HelpTag() { return mHelpTag; }
    void set_HelpTag(const String& help);
    // Shown where there is no help tag; the second one while the control is disabled.
    String BalloonHelp() { return mBalloonHelp; }
    void set_BalloonHelp(const String& help);
    String DisabledBalloonHelp() { return mDisabledBalloonHelp; }
    void set_DisabledBalloonHelp(const String& help);
    Ref<tavrik::MouseCursor> MouseCursor() { return mMouseCursor; }
    void set_MouseCursor(Arg<tavrik::MouseCursor> cursor);
    bool Visible() { return controlVisibleGetter(this, 0); }
    void set_Visible(bool visible) { ControlVisibleSetter(this, 0, visible); }
    std::int32_t Left() { return ctlPosGetter(this, 0); }
    void set_Left(std::int32_t left) { ctlPosSetter(this, 0, left); }
    std::int32_t Top() { return ctlPosGetter(this, 1); }
    void set_Top(std::int32_t top) { ctlPosSetter(this, 1, top); }
    std::int32_t Width() { return ctlPosGetter(this, 2); }
    void set_Width(std::int32_t width) { ctlPosSetter(this, 2, width); }
    std::int32_t Height() { return ctlPosGetter(this, 3); }
    void set_Height(std::int32_t height) { ctlPosSetter(this, 3, height); }
    // Takes effect at once on the looks, and on whether the control fires.
    bool Enabled() { return controlEnabledGetter(this, 0); }
    void set_Enabled(bool enabled) { controlEnabledSetter(this, 0, enabled); }
    // Whether it is enabled and its window is the active one.
    bool Active() { return controlActiveGetter(this, 0); }
    bool AutoDeactivate() { return controlAutoDeactivateGetter(this, 0); }
    void set_AutoDeactivate(bool automatic) { controlAutoDeactivateSetter(this, 0, automatic); }
    bool LockLeft() { return controlLockLeftGetter(this, 0); }
    void set_LockLeft(bool locked) { controlLockLeftSetter(this, 0, locked); }
    bool LockTop() { return controlLockTopGetter(this, 0); }
    void set_LockTop(bool locked) { controlLockTopSetter(this, 0, locked); }
    bool LockRight() { return controlLockRightGetter(this, 0); }
    void set_LockRight(bool locked) { controlLockRightSetter(this, 0, locked); }
    bool LockBottom() { return controlLockBottomGetter(this, 0); }
    void set_LockBottom(bool locked) { controlLockBottomSetter(this, 0, locked); }
    // The control that this one lies in, or nil where that is the window itself. Assigning leaves it where it is on the
    // screen.
    Ref<RectControl> Parent() { return static_ref<RectControl>(ControlParentGetter(this, 0)); }
    void set_Parent(Arg<RectControl> parent) { ControlParentSetter(this, 0, parent.object()); }
    void set_InitialParent(const String& parent) { ControlInitialParentSetter(this, 0, parent); }
    std::int32_t TabIndex() { return ControlTabIndexGetter(this, 0); }
    void set_TabIndex(std::int32_t index) { ControlTabIndexSetter(this, 0, index); }

    struct Events {
        static inline constinit Event<void(std::int32_t, std::int32_t)> MouseMove;
        static inline constinit Event<void()> MouseEnter, MouseExit;
        static inline constinit Event<void(Arg<DragItem>, std::int32_t)> DropObject;
        static inline constinit Event<bool(std::int32_t, std::int32_t, std::int32_t, std::int32_t)> MouseWheel;
        static inline constinit Event<bool(Arg<MenuItem>, std::int32_t, std::int32_t)> ConstructContextualMenu;
        static inline constinit Event<bool(Arg<MenuItem>)> ContextualMenuAction;
        static inline constinit Event<bool(Arg<DragItem>)> DragEnter;
        static inline constinit Event<void(Arg<DragItem>)> DragExit;
        static inline constinit Event<bool(std::int32_t, std::int32_t, Arg<DragItem>)> DragOver;
        static inline constinit Event<bool(const String&)> KeyDown;
    };

    StringField mHelpTag, mBalloonHelp, mDisabledBalloonHelp;
    Field<tavrik::MouseCursor> mMouseCursor;

private:
    using InvalidateRect = void(std::int32_t, std::int32_t, std::int32_t, std::int32_t, bool);
};

}  // namespace tavrik
