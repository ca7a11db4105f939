#pragma once

#include "ui/window.h"

#include <tavrik/container_control.h>

namespace tavrik {

struct PagePanel;

// A window that lies in another window, as a control there.
struct ContainerControl : Class<ContainerControl, Window> {
    static const ClassDefinition& definition();

    // Left and top count from the corner of the window's content.
    void EmbedWithin(Arg<tavrik::Window> window, std::int32_t left, std::int32_t top, std::int32_t width,
                     std::int32_t height) {
        dispatch<pick<Within<tavrik::Window>>(&ContainerControl::EmbedWithin)>(this, window, left, top, width, height);
    }
    void EmbedWithin(Arg<RectControl> control, std::int32_t left, std::int32_t top, std::int32_t width,
                     std::int32_t height) {
        dispatch<pick<Within<RectControl>>(&ContainerControl::EmbedWithin)>(this, control, left, top, width, height);
    }
    void EmbedWithinPanel(Arg<PagePanel> panel, std::int32_t page, std::int32_t left, std::int32_t top,
                          std::int32_t width, std::int32_t height) {
        dispatch<&ContainerControl::EmbedWithinPanel>(this, panel, page, left, top, width, height);
    }

    // As those of a window; it is never modal, and fills no screen.
    void Show() { RuntimeShowWindow(this); }
    void ShowWithin(Arg<tavrik::Window> other, std::int32_t side) {
        RuntimeShowWithinWindow(this, other.object(), side);
    }
    void ShowModalWithin(Arg<tavrik::Window> other) { RuntimeShowModalWithinWindow(this, other.object()); }
    void Hide() { RuntimeHideWindow(this); }
    void Maximize() { WindowMaximize(this); }
    void Minimize() { WindowMinimize(this); }
    void Restore() { WindowRestore(this); }
    void DrawInto(Arg<tavrik::Graphics> graphics, std::int32_t left, std::int32_t top, bool content_only) {
        formDrawInto(this, graphics.object(), left, top, content_only);
    }
    void UpdateNow() { WindowForceUpdateFrontBuffer(this); }

    void set_InitialParent(const String& parent) { eWindowInitialParentSetter(this, 0, parent); }
    std::int32_t TabPanelIndex() { return eWindowIntPassThroughGetter(this, HostValue::kTabPanelIndex); }
    void set_TabPanelIndex(std::int32_t page) { eWindowTabPanelIndexSetter(this, 0, page); }
    std::int32_t TabIndex() { return eWindowTabIndexGetter(this, 0); }
    void set_TabIndex(std::int32_t index) { eWindowTabIndexSetter(this, 0, index); }
    Ref<RectControl> Parent() { return static_ref<RectControl>(eWindowParentGetter(this, 0)); }
    void set_Parent(Arg<RectControl> parent) { eWindowParentSetter(this, 0, parent.object()); }
    // What it lies in, and the control that stands in for it there.
    Ref<tavrik::Window> Window() { return static_ref<tavrik::Window>(eWindowContainingWindowGettter(this, 0)); }
    Ref<RectControl> _Control() { return static_ref<RectControl>(eWindowControlGetter(this, 0)); }
    bool LockLeft() { return eWindowBoolPassThroughGetter(this, HostValue::kLockLeft); }
    void set_LockLeft(bool locked) { eWindowBoolPassThroughSetter(this, HostValue::kLockLeft, locked); }
    bool LockTop() { return eWindowBoolPassThroughGetter(this, HostValue::kLockTop); }
    void set_LockTop(bool locked) { eWindowBoolPassThroughSetter(this, HostValue::kLockTop, locked); }
    bool LockRight() { return eWindowBoolPassThroughGetter(this, HostValue::kLockRight); }
    void set_LockRight(bool locked) { eWindowBoolPassThroughSetter(this, HostValue::kLockRight, locked); }
    bool LockBottom() { return eWindowBoolPassThroughGetter(this, HostValue::kLockBottom); }
    void set_LockBottom(bool locked) { eWindowBoolPassThroughSetter(this, HostValue::kLockBottom, locked); }
    bool Enabled() { return eWindowEnabledGetter(this, 0); }
    void set_Enabled(bool enabled) { eWindowEnabledSetter(this, 0, enabled); }
    bool AutoDeactivate() { return eWindowBoolPassThroughGetter(this, HostValue::kAutoDeactivate); }
    void set_AutoDeactivate(bool automatic) { eWindowAutoDeactivateSetter(this, 0, automatic); }
    bool AcceptFocus() { return eWindowBoolPassThroughGetter(this, HostValue::kAcceptFocus); }
    void set_AcceptFocus(bool accepts) { eWindowBoolPassThroughSetter(this, HostValue::kAcceptFocus, accepts); }
    bool AcceptTabs() { return eWindowBoolPassThroughGetter(this, HostValue::kAcceptTabs); }
    void set_AcceptTabs(bool accepts) { eWindowBoolPassThroughSetter(this, HostValue::kAcceptTabs, accepts); }
    bool UseFocusRing() { return eWindowBoolPassThroughGetter(this, HostValue::kUseFocusRing); }
    void set_UseFocusRing(bool uses) { eWindowBoolPassThroughSetter(this, HostValue::kUseFocusRing, uses); }
    bool EraseBackground() { return eWindowBoolPassThroughGetter(this, HostValue::kEraseBackground); }
    void set_EraseBackground(bool erases) { eWindowBoolPassThroughSetter(this, HostValue::kEraseBackground, erases); }
    String HelpTag() { return eWindowStringPassThroughGetter(this, HostValue::kHelpTag); }
    void set_HelpTag(const String& help) { eWindowHelpTagSetter(this, 0, help); }
    String DisabledBalloonHelp() { return eWindowStringPassThroughGetter(this, HostValue::kDisabledBalloonHelp); }
    void set_DisabledBalloonHelp(const String& help) { eWindowDisabledBalloonHelpSetter(this, 0, help); }

    struct Events {
        static inline constinit Event<void()> GotFocus, LostFocus;
    };

    template <class Outer>
    using Within = void(Arg<Outer>, std::int32_t, std::int32_t, std::int32_t, std::int32_t);
};

}  // namespace tavrik
