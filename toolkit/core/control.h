#pragma once

#include "toolkit/core/menu_handlers.h"
#include "toolkit/front/front.h"

#include <tavrik/object.h>

namespace tavrik::core {

// A control: what all kinds have in common. The state of a kind that shows on a screen derives from it.
class ControlState : public NativeState {
public:
    explicit ControlState(Object* self) : self_(self) {}

    front::Rect bounds;
    bool visible = true;
    bool enabled = true;
    bool auto_deactivate = true;
    bool lock_left = false;
    bool lock_top = false;
    bool lock_right = false;
    bool lock_bottom = false;
    std::int32_t tab_index = 0;
    std::string initial_parent;  // the name of the control that this one starts in; "" for the window
    std::string help;
    MenuHandlers menu_handlers;

    Object* self() const { return self_; }
    // nullptr outside of any window.
    Object* window() const { return window_; }
    void enter(Object* window) { window_ = window; }
    void leave() { window_ = nullptr; }

    virtual void attach(front::WindowFace& window);
    virtual void detach();
    // Tells the face the state anew.
    virtual void changed();
    virtual void set_focus();

private:
    Object* self_;
    Object* window_ = nullptr;  // the window holds the control
};

ControlState& control_state(Object* control);

// The state for a control of the named class or of a subclass of it.
std::unique_ptr<ControlState> make_push_button_state(Object* button);

// Gives a control a new `_Pane`.
void create_pane(Object* control);

}  // namespace tavrik::core
