#pragma once

#include "runtime/class.h"

namespace tavrik {

struct Control;
struct Window;

// What can be told of an object that is neither a control nor a window: its window is its second operation.
struct _PaneChild : Interface<_PaneChild> {};

// _MouseDown, _MouseDrag, _MouseUp.
struct _MouseEvents : Interface<_MouseEvents> {};

// _GotFocus, _LostFocus.
struct _FocusEvents : Interface<_FocusEvents> {};

// The geometry and event-routing side of a control.
struct _Pane : Class<_Pane> {
    static const ClassDefinition& definition();

    // For a subclass to fill.
    void CreateImp() { dispatch<&_Pane::CreateImp>(this); }
    void Destructor() { dispatch<&_Pane::Destructor>(this); }
    void Close() { dispatch<&_Pane::Close>(this); }
    bool IsRootControl() { return dispatch<&_Pane::IsRootControl>(this); }
    void Constructor(Arg<tavrik::Control> control) { dispatch<&_Pane::Constructor>(this, control); }
    void AddToParentPane() { dispatch<&_Pane::AddToParentPane>(this); }
    void Open() { dispatch<&_Pane::Open>(this); }

    Ref<tavrik::Window> Window() { return mWindow; }
    void set_Window(Arg<tavrik::Window> window);
    Ref<tavrik::Control> Control() { return mControl; }
    void set_Control(Arg<tavrik::Control> control) { mControl = control; }

    Field<tavrik::Window> mWindow;
    Field<_Pane> mParent;
    Field<ArrayOf<_Pane>> mChildren;
    Field<tavrik::Control> mControl;
};

}  // namespace tavrik
