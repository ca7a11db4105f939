#pragma once

#include "ui/control.h"

namespace tavrik {

struct DragItem;
struct MenuItem;

// A control that has a rectangle.
struct RectControl : Class<RectControl, Control> {
    static const ClassDefinition& definition();

    void SetFocus() { dispatch<&RectControl::SetFocus>(this); }
    void Constructor() { dispatch<&RectControl::Constructor>(this); }
    void _MouseEnter() { dispatch<&RectControl::_MouseEnter>(this); }
    void _MouseExit() { dispatch<&RectControl::_MouseExit>(this); }
    void _MouseMove(std::int32_t x, std::int32_t y) { dispatch<&RectControl::_MouseMove>(this, x, y); }
    bool _MouseWheel(std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
        return dispatch<&RectControl::_MouseWheel>(this, x, y, delta_x, delta_y);
    }
    bool _KeyDown(const String& key) { return dispatch<&RectControl::_KeyDown>(this, key); }
    void __DependencyList() { dispatch<&RectControl::__DependencyList>(this); }
    void RectControl_() { dispatch<&RectControl::RectControl_>(this); }

    String HelpTag() { return mHelpTag; }
    void set_HelpTag(const String& help);
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

    StringField mHelpTag;
};

}  // namespace tavrik
