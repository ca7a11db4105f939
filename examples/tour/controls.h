#pragma once

#include "runtime/tavrik_module.h"
#include "ui/rect_control.h"
#include "ui/window.h"

#include <string>

// What the windows of the tour make their controls with.
namespace tavrik::tour {

struct Place {
    std::int32_t left, top, width, height;
};

// A new control in a window.
template <class Kind>
Ref<Kind> add(Arg<Window> window, const String& name, Place at) {
    const Ref<Kind> control = make<Kind>();
    control->Constructor();
    window->_AddControl(name, control);
    control->_Move(at.left, at.top, at.width, at.height);
    return control;
}

// Has a function called for an event of this one object. The function gets the object, then the event's arguments.
template <class Result, class... Arguments>
void on(Arg<Object> object, const String& event, Result (*handler)(Object*, Arguments...)) {
    Tavrik::_InstallInstanceEventHandler(object, event, reinterpret_cast<Function>(handler));
}

// The window of a control that a handler was called with. For a control in a container that is the container.
template <class Kind>
Ref<Kind> window_of(Object* control) {
    return check_cast<Kind>(static_cast<Control*>(control)->Window());
}

// The edges that the control keeps its distance from when the window is resized.
template <class Reference>
void lock_edges(const Reference& control, bool left, bool top, bool right, bool bottom) {
    control->set_LockLeft(left);
    control->set_LockTop(top);
    control->set_LockRight(right);
    control->set_LockBottom(bottom);
}

inline String text(const std::string& words) { return String(std::string_view(words)); }

}  // namespace tavrik::tour
