#pragma once

#include "runtime/class.h"

#include <tavrik/control.h>

namespace tavrik {

struct Window;
struct _Pane;

// What lives in a window.
struct Control : Class<Control> {
    static const ClassDefinition& definition();

    void Close() { dispatch<&Control::Close>(this); }
    void _SetWindow(Arg<tavrik::Window> window) { dispatch<&Control::_SetWindow>(this, window); }
    void _CallOpenEvent() { dispatch<&Control::_CallOpenEvent>(this); }

    String Name() { return mName; }
    void set_Name(const String& name) { mName = name; }
    // The lowest Int32 for a control outside of any control array.
    std::int32_t Index() { return mIndex; }
    void set_Index(std::int32_t index) { mIndex = index; }
    // The page of the panel that the control stands on, from 0 on; two names for it.
    std::int32_t TabPanelIndex() { return mTabPanelIndex; }
    void set_TabPanelIndex(std::int32_t index);
    std::int32_t PanelIndex() { return ControlPanelIndexGetter(this, 0); }
    void set_PanelIndex(std::int32_t index) { ControlPanelIndexSetter(this, 0, index); }
    // Where the pointer is, relative to the control.
    std::int32_t MouseX() { return controlMouseXGetter(this, 0); }
    std::int32_t MouseY() { return controlMouseYGetter(this, 0); }
    Ref<tavrik::Window> Window() { return static_ref<tavrik::Window>(controlWindowGetter(this, 0)); }
    std::int32_t Handle() { return controlMacControlHandleGetter(this, 0); }

    struct Events {
        static inline constinit Event<void()> CreatePane, Open, Close;
    };

    Field<_Pane> _mImp;
    Field<tavrik::Window> _mWindow;
    std::int32_t _mIndex;
    StringField _mName;
    std::int32_t _mPanelIndex;
    StringField _mInitialParent;

    StringField mName;
    std::int32_t mIndex;
    std::int32_t mTabPanelIndex;
};

}  // namespace tavrik
