#pragma once

#include "toolkit/core/accepted_drops.h"
#include "toolkit/core/menu_handlers.h"
#include "toolkit/front/front.h"

#include <tavrik/array.h>
#include <tavrik/object.h>

#include <memory>
#include <optional>

namespace tavrik::core {

class ControlState;
class HostState;

// A window: what it is, and its face once it has been shown.
class WindowState final : public NativeState, private front::WindowListener {
public:
    explicit WindowState(Object* self);
    ~WindowState() override;

    // How the program wants it. The content's bounds are those that it has, or comes back to, in its normal size.
    front::WindowDescription description;
    std::uint32_t back_color = 0xFFFFFF;
    Ref<Object> backdrop;
    AcceptedDrops accepted_drops;
    MenuHandlers menu_handlers;

    Object* menu_bar() const { return menu_bar_.object(); }
    void set_menu_bar(Object* bar);

    // Where the content is now.
    front::Rect bounds() const;
    // These hold the size within the limits, and raise Moved and Resized for what is new.
    void set_bounds(const front::Rect& wanted);
    void set_full_screen(bool full_screen);
    void limits_changed();
    // Raises the event of the new state.
    void set_size_state(front::WindowSize wanted);

    front::WindowFace* face() const { return face_.get(); }
    bool is_on_screen() const { return face_ != nullptr && description.visible; }
    // Makes the face at the first showing, with the faces of the controls.
    void show();
    void hide();
    // Tells the face the description anew.
    void changed();
    // The face learns of it by the end of the event, apply_menus() tells it at once.
    void menus_changed();
    // Looks whether the program has written a stored property that the face shows.
    void look_at_stored_properties();
    void apply_menus();
    // The face goes, the state stays.
    void drop_face();

    // nullptr: it stays above no other window.
    Object* owner() const { return owner_.object(); }
    void set_owner(Object* owner);
    void set_modality(front::Modality modality);

    // A container lies in a control of another window, its host. It has no face of its own, and its place is the
    // host's.
    bool is_container() const { return is_container_; }
    // nullptr unless it is embedded.
    HostState* host() const { return is_embedded_ ? host_ : nullptr; }
    // What stands in for it once it is embedded.
    HostState& future_host();
    void embed();
    void follow_host();
    void part_from_host();
    Object* self() const { return self_; }
    // The window that it lies in at last.
    WindowState& outermost();

    // Gives the control a face, if what it lies in has one.
    void attach(ControlState& control);
    // The same for all of them.
    void attach_controls();
    void detach_controls();
    // The pointer's place in the content; its corner where there is no pointer.
    front::Point pointer() const;
    bool active() const;
    // A key that no control has used. Whether the window has.
    bool press_key(const front::Key& key);

    // Once Open has been raised: controls that come later are opened as they come.
    bool opened = false;
    // Where it is in the close protocol.
    enum class Closing { kNo, kAsked, kAgreed, kClosed };
    Closing closing = Closing::kNo;

private:
    bool mouse_down(front::Point at, front::MouseButton button) override;
    void mouse_dragged(front::Point at) override;
    void mouse_up(front::Point at) override;
    bool mouse_wheel(front::Point at, int delta_x, int delta_y) override;
    bool key_down(const front::Key& key) override;
    bool menu_requested(front::Point at) override;
    void mouse_moved(front::Point at) override;
    void mouse_left() override;
    void close_requested() override;
    void activated(bool active) override;
    void moved(int left, int top) override;
    void resized(int width, int height, front::ResizePhase phase) override;
    void size_state_changed(front::WindowSize now) override;
    void menus_opening() override;
    void menu_chosen(front::MenuId chosen) override;

    template <class Report>
    void take(Report report);

    // What the faces of the controls lie in.
    front::ContainerFace* contents() const;
    void make_face();
    // It and the containers in it.
    void tell_active(bool active);
    // The containers that have only heard that they were being resized.
    static void tell_containers_resized(Object* window);
    // The controls keep to their locks when the content has another size.
    void lay_out();
    front::WindowDescription described() const;
    bool fills_screen() const;
    front::Rect& bounds_now();
    void tell_bounds(const front::Rect& before);
    void tell_size_state();

    Object* self_;
    Ref<Object> menu_bar_;
    Ref<Object> owner_;
    front::Modality modality_ = front::Modality::kNone;
    std::optional<front::Rect> filled_;         // the bounds while it fills the screen
    std::optional<front::Rect> before_resize_;  // while the person drags
    front::WindowSize told_size_state_ = front::WindowSize::kNormal;
    bool menus_stale_ = false;
    std::unique_ptr<front::WindowFace> face_;
    front::Rect laid_out_;  // the size that the controls have followed
    bool active_ = false;
    bool being_resized_ = false;  // by the person, who hasn't let go yet
    bool owes_resized_ = false;
    bool is_container_;
    bool is_embedded_ = false;
    HostState* host_ = nullptr;
    Ref<Object> host_control_;
};

WindowState& window_state(Object* window, const char* call = __builtin_FUNCTION());

// Its controls in the order in which they came; nil for a window at its end.
Ref<ArrayOf<Object>> control_list(Object* window);
// The names of its controls; nil once it is closed.
Ref<Object> control_names(Object* window);
// Opens its controls and raises Open.
void open_window(Object* window);
// A control that has closed by itself leaves the window.
void control_has_closed(Object* window, Object* control);

// Lets every window that waits for it update itself. The end of an event.
void update_dirty_windows();

}  // namespace tavrik::core
