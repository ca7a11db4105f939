#pragma once

#include "toolkit/core/accepted_drops.h"
#include "toolkit/core/menu_handlers.h"
#include "toolkit/front/front.h"

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <memory>
#include <vector>

namespace tavrik::core {

// A control: what all kinds have in common. The state of a kind that shows on a screen derives from it.
class ControlState : public NativeState, private front::ControlListener {
public:
    explicit ControlState(Object* self) : self_(self) {}
    ~ControlState() override;

    Object* self() const { return self_; }
    // nullptr outside of any window.
    Object* window() const { return window_; }
    void enter(Object* window) { window_ = window; }
    // Out of the window, and away from the controls around it.
    virtual void leave();

    // Where it stands, from the corner of the window's content.
    const front::Rect& bounds() const { return bounds_; }
    // Children go with it, and keep to their locks.
    void set_bounds(const front::Rect& bounds);
    // Takes the rectangle that the pane has.
    void follow_pane();
    // What it lies in has moved and grown by so much.
    void follow_parent(const front::Rect& change);

    ControlState* parent() const { return parent_; }
    const std::vector<ControlState*>& children() const { return children_; }
    // nullptr is the window itself. The control stays where it is on the screen. Raises InvalidParentException for one
    // of another window, for itself and for what lies in it.
    void set_parent(ControlState* parent);
    // The parent of that name, at once if the window has it by now and else when the window opens.
    void set_initial_parent(const String& name);
    void find_initial_parent();

    // The page of the parent that it stands on.
    std::int32_t panel_index() const { return panel_index_; }
    void set_panel_index(std::int32_t index);
    // Whether a child can be seen as far as this control goes: one with pages shows some of them.
    virtual bool shows(const ControlState& child) const;
    // It and all that it lies in are enabled.
    bool enabled_throughout() const;

    // Makes the faces of the control and of all that lies in it.
    void attach(front::ContainerFace& container);
    void detach();
    front::ControlFace* face() const { return face_.get(); }
    // Tells pane and face the state anew.
    void changed();
    void children_changed();
    // Moves what lies in a part, told from the control's own corner.
    void scroll_children(const front::Rect& part, std::int32_t delta_x, std::int32_t delta_y);
    // Looks whether the program has written a stored property that the face shows. Only asked while there is a face.
    virtual void look_at_stored_properties() {}
    void set_focus();
    void refresh(const front::Rect* part);
    std::uintptr_t handle() const;

    // In its Close event.
    bool is_closing = false;
    // While it has the focus: turns on the menu items that it answers, and answers one.
    virtual void enable_menu_items(Object*) {}
    virtual bool handle_menu_command(Object*) { return false; }

    bool visible = true;
    bool enabled = true;
    bool auto_deactivate = true;
    bool lock_left = false;
    bool lock_top = false;
    bool lock_right = false;
    bool lock_bottom = false;
    std::int32_t tab_index = 0;
    // Few controls have any.
    AcceptedDrops& accepted_drops();
    MenuHandlers menu_handlers;

protected:
    // nullptr for a kind that shows nothing.
    virtual std::unique_ptr<front::ControlFace> make_face(front::ContainerFace& container,
                                                          front::ControlListener& listener);
    // Gives the description to a face that make_face() has made.
    virtual void apply_to(front::ControlFace& face);
    // Whether some of its looks are stored properties, which are written without telling anyone.
    virtual bool has_stored_looks() const { return false; }
    // The part of a description that all kinds have.
    void describe(front::ControlDescription& description) const;
    // What lies in it without being a child.
    virtual void attach_contents() {}
    virtual void detach_contents() {}
    virtual void state_changed() {}

private:
    bool mouse_down(front::Point at, front::MouseButton button) override;
    void mouse_dragged(front::Point at) override;
    void mouse_up(front::Point at) override;
    bool mouse_wheel(front::Point at, int delta_x, int delta_y) override;
    bool key_down(const front::Key& key) override;
    bool menu_requested(front::Point at) override;
    void focus_changed(bool has_focus) override;

    void tell_face();
    bool has_rectangle() const;

    Object* self_;
    Object* window_ = nullptr;  // the window holds the control
    ControlState* parent_ = nullptr;
    std::vector<ControlState*> children_;
    front::Rect bounds_;
    std::int32_t panel_index_ = 0;
    String initial_parent_;
    std::unique_ptr<AcceptedDrops> accepted_drops_;
    std::unique_ptr<front::ControlFace> face_;
};

ControlState& control_state(Object* control, const char* call = __builtin_FUNCTION());

// Has the controls with stored looks that are on a screen look at them: the last thing of each event.
void look_at_controls();

// The state for a control of the named class or of a subclass of it.
std::unique_ptr<ControlState> make_push_button_state(Object* button);
std::unique_ptr<ControlState> make_canvas_state(Object* canvas);
std::unique_ptr<ControlState> make_page_panel_state(Object* panel);
std::unique_ptr<ControlState> make_tab_panel_state(Object* panel);
std::unique_ptr<ControlState> make_host_state(Object* host);

}  // namespace tavrik::core
