#include "toolkit/core/contextual_menu.h"
#include "toolkit/core/control.h"
#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/mouse_cursor.h"
#include "toolkit/core/pane.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/window.h"

#include <tavrik/exception.h>
#include <tavrik/window.h>
#include <tavrik/wrapping.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tavrik::core {
namespace {

constinit Property<String> name_of{"Control", "Name"};
constinit Property<String> help_tag{"RectControl", "HelpTag"};
constinit Property<String> balloon_help{"RectControl", "BalloonHelp"};
constinit Property<String> disabled_help{"RectControl", "DisabledBalloonHelp"};

constinit Property<Ref<Object>> mouse_cursor{"RectControl", "MouseCursor"};

constinit Operation<bool(const String&)> key_pressed{"RectControl", "_KeyDown", "%b%s"};
constinit Operation<bool(std::int32_t, std::int32_t, std::int32_t)> pane_pressed{"_Pane", "HandleMouseDown",
                                                                                 "%b%i4i4i4"};
constinit Operation<void(std::int32_t, std::int32_t)> pane_dragged{"_Pane", "HandleMouseDrag", "%%i4i4"};
constinit Operation<void(std::int32_t, std::int32_t)> pane_released{"_Pane", "HandleMouseUp", "%%i4i4"};
constinit Operation<bool(std::int32_t, std::int32_t, std::int32_t, std::int32_t)> pane_wheeled{
    "_Pane", "HandleMouseWheel", "%b%i4i4i4i4"};
constinit Operation<bool(const String&, std::int32_t, std::int32_t)> pane_key{"_Pane", "HandleKeyDown", "%b%si4i4"};
constinit Operation<void()> pane_got_focus{"_Pane", "HandleGotFocus", "%%"};
constinit Operation<void()> pane_lost_focus{"_Pane", "HandleLostFocus", "%%"};

struct StateMaker {
    std::string_view class_name;
    std::unique_ptr<ControlState> (*make)(Object* control);
};
constexpr std::array kStateMakers{StateMaker{"PushButton", make_push_button_state},
                                  StateMaker{"Canvas", make_canvas_state}, StateMaker{"TabPanel", make_tab_panel_state},
                                  StateMaker{"PagePanel", make_page_panel_state},
                                  StateMaker{"EmbeddedWindowControl", make_host_state}};

// The controls with stored looks that have a face.
std::vector<ControlState*>& looked_at() {
    static auto* const controls = new std::vector<ControlState*>;  // outlives the last control
    return *controls;
}

std::unique_ptr<ControlState> make_state(Object* control) {
    for (const ClassRecord* record = control->record; record != nullptr; record = record->parent) {
        for (const StateMaker& maker : kStateMakers) {
            if (view(record->name) == maker.class_name) return maker.make(control);
        }
    }
    return std::make_unique<ControlState>(control);
}

// How far b is from a, in each number.
front::Rect change_between(const front::Rect& a, const front::Rect& b) {
    return {wrapping_difference(b.left, a.left), wrapping_difference(b.top, a.top),
            wrapping_difference(b.width, a.width), wrapping_difference(b.height, a.height)};
}

}  // namespace

ControlState& control_state(Object* control, const char* call) {
    need_main_thread(call);
    if (control == nullptr) RaiseNilObjectException();
    if (control->native == nullptr) control->native = make_state(control).release();
    return *native<ControlState>(control);
}

void look_at_controls() {
    std::vector<Ref<Object>> controls;  // looking may end some of them
    for (const ControlState* const control : looked_at()) controls.emplace_back(control->self());
    for (const Ref<Object>& control : controls) {
        if (ControlState& state = control_state(control.object()); state.face() != nullptr)
            state.look_at_stored_properties();
    }
}

ControlState::~ControlState() {
    std::erase(looked_at(), this);
    for (ControlState* const child : children_) child->parent_ = nullptr;
    if (parent_ != nullptr) std::erase(parent_->children_, this);
}

void ControlState::leave() {
    detach();
    for (ControlState* const child : std::exchange(children_, {})) child->parent_ = nullptr;
    if (parent_ != nullptr) std::erase(std::exchange(parent_, nullptr)->children_, this);
    window_ = nullptr;
}

void ControlState::set_bounds(const front::Rect& bounds) {
    const Ref<Object> kept(self_);
    const front::Rect change = change_between(bounds_, bounds);
    // What lies in a container hears of its new size, and may close anything.
    std::vector<Ref<Object>> followers;
    for (const ControlState* const child : children_) followers.emplace_back(child->self_);
    bounds_ = bounds;
    changed();
    if (change == front::Rect()) return;
    for (const Ref<Object>& follower : followers) {
        ControlState& child = control_state(follower.object());
        if (child.parent_ == this) child.follow_parent(change);
    }
}

void ControlState::follow_pane() {
    const Ref<Object> pane = pane_of(self_);
    if (!pane) return;
    const Ref<Object> kept(self_);
    bounds_ = bounds_of_pane(pane.object());
    tell_face();
}

void ControlState::follow_parent(const front::Rect& change) {
    front::Rect next = bounds_;
    next.left = wrapping_sum(next.left, change.left);
    next.top = wrapping_sum(next.top, change.top);
    if (lock_right) {
        std::int32_t& moved = lock_left ? next.width : next.left;
        moved = wrapping_sum(moved, change.width);
    }
    if (lock_bottom) {
        std::int32_t& moved = lock_top ? next.height : next.top;
        moved = wrapping_sum(moved, change.height);
    }
    if (next != bounds_) set_bounds(next);
}

void ControlState::set_parent(ControlState* parent) {
    if (parent == parent_) return;
    if (parent != nullptr && parent->window_ != window_) {
        RuntimeRaise("InvalidParentException", "the parent of a control must be in the same window");
    }
    for (const ControlState* above = parent; above != nullptr; above = above->parent_) {
        if (above == this) RuntimeRaise("InvalidParentException", "a control can't lie in itself");
    }
    detach();
    if (parent_ != nullptr) std::erase(parent_->children_, this);
    parent_ = parent;
    if (parent_ != nullptr) parent_->children_.push_back(this);
    mirror(*this);
    if (window_ != nullptr) window_state(window_).attach(*this);
}

void ControlState::set_initial_parent(const String& name) {
    initial_parent_ = name;
    find_initial_parent();
}

void ControlState::find_initial_parent() {
    if (initial_parent_.view().empty() || window_ == nullptr) return;
    const Ref<Object> found = RuntimeControlReference(window_, initial_parent_);
    if (!found) return;
    initial_parent_ = nullptr;
    set_parent(&control_state(found.object()));
}

AcceptedDrops& ControlState::accepted_drops() {
    if (!accepted_drops_) accepted_drops_ = std::make_unique<AcceptedDrops>();
    return *accepted_drops_;
}

void ControlState::set_panel_index(std::int32_t index) {
    panel_index_ = index;
    changed();
}

bool ControlState::shows(const ControlState&) const { return true; }

bool ControlState::enabled_throughout() const {
    const ControlState* around = parent_;
    if (around == nullptr && window_ != nullptr) around = window_state(window_).host();
    return enabled && (around == nullptr || around->enabled_throughout());
}

void ControlState::attach(front::ContainerFace& container) {
    face_ = make_face(container, *this);
    if (!face_) return;
    if (has_stored_looks()) looked_at().push_back(this);
    apply_to(*face_);
    for (ControlState* const child : children_) child->attach(*face_);
    attach_contents();
}

void ControlState::detach() {
    detach_contents();
    for (ControlState* const child : children_) child->detach();
    std::erase(looked_at(), this);
    if (face_) on_main_stack([this] { face_.reset(); });
}

void ControlState::changed() {
    mirror(*this);
    tell_face();
}

void ControlState::children_changed() {
    for (ControlState* const child : children_) child->changed();
}

void ControlState::scroll_children(const front::Rect& part, std::int32_t delta_x, std::int32_t delta_y) {
    const auto within = [](std::int32_t at, std::int32_t start, std::int32_t length) {
        const std::int64_t distance = std::int64_t{at} - start;
        return distance >= 0 && distance < length;
    };
    for (ControlState* const child : std::vector(children_)) {
        const front::Rect& bounds = child->bounds_;
        if (!within(bounds.left, wrapping_sum(bounds_.left, part.left), part.width)) continue;
        if (!within(bounds.top, wrapping_sum(bounds_.top, part.top), part.height)) continue;
        child->set_bounds(
            {wrapping_sum(bounds.left, delta_x), wrapping_sum(bounds.top, delta_y), bounds.width, bounds.height});
    }
}

void ControlState::tell_face() {
    state_changed();
    if (face_) on_main_stack([this] { apply_to(*face_); });
}

void ControlState::set_focus() {
    if (face_) on_main_stack([this] { face_->set_focus(); });
}

void ControlState::refresh(const front::Rect* part) {
    if (face_) on_main_stack([&] { face_->refresh(part); });
}

std::uintptr_t ControlState::handle() const {
    if (!face_) return 0;
    return on_main_stack([this] { return face_->handle(); });
}

bool ControlState::has_rectangle() const { return RuntimeObjectIsa(self_, need_class("RectControl")); }

std::unique_ptr<front::ControlFace> ControlState::make_face(front::ContainerFace& container,
                                                            front::ControlListener& listener) {
    return has_rectangle() ? container.make_panel(listener) : nullptr;
}

void ControlState::apply_to(front::ControlFace& face) {
    front::ControlDescription panel;
    describe(panel);
    static_cast<front::PanelFace&>(face).apply(panel);
}

void ControlState::describe(front::ControlDescription& description) const {
    description.name = name_of.get(self_).view();
    description.bounds = bounds_;
    if (parent_ != nullptr) {
        description.bounds.left = wrapping_difference(bounds_.left, parent_->bounds_.left);
        description.bounds.top = wrapping_difference(bounds_.top, parent_->bounds_.top);
    }
    description.tab_index = tab_index;
    description.visible = visible && (parent_ == nullptr || parent_->shows(*this));
    description.enabled = enabled;
    description.looks_inactive_with_window = auto_deactivate;
    description.help = help_tag.get(self_).view();
    description.cursor = cursor_of(mouse_cursor.get(self_).object());
    if (description.help.empty()) description.help = (enabled ? balloon_help : disabled_help).get(self_).view();
}

// ---- What the person does. Any of it may close the control's window.

bool ControlState::mouse_down(front::Point at, front::MouseButton button) {
    bool taken = false;
    deliver([&, this] {
        const Ref<Object> kept(self_);
        if (const Ref<Object> pane = pane_of(self_))
            taken = pane_pressed(pane.object(), at.left, at.top, static_cast<std::int32_t>(button));
    });
    return taken;
}

void ControlState::mouse_dragged(front::Point at) {
    deliver([=, this] {
        const Ref<Object> kept(self_);
        if (const Ref<Object> pane = pane_of(self_)) pane_dragged(pane.object(), at.left, at.top);
    });
}

void ControlState::mouse_up(front::Point at) {
    deliver([=, this] {
        const Ref<Object> kept(self_);
        if (const Ref<Object> pane = pane_of(self_)) pane_released(pane.object(), at.left, at.top);
    });
}

bool ControlState::mouse_wheel(front::Point at, int delta_x, int delta_y) {
    bool taken = false;
    deliver([&, this] {
        const Ref<Object> kept(self_);
        if (const Ref<Object> pane = pane_of(self_))
            taken = pane_wheeled(pane.object(), at.left, at.top, delta_x, delta_y);
    });
    return taken;
}

bool ControlState::key_down(const front::Key& key) {
    bool taken = false;
    deliver([&, this] {
        const Ref<Object> kept(self_);
        const String text{std::string_view(key.text)};
        taken = has_rectangle() && key_pressed(self_, text);
        if (taken) return;
        const Ref<Object> pane = pane_of(self_);
        taken = pane && pane_key(pane.object(), text, key.code, key.modifiers);
        if (taken || window_ == nullptr) return;
        const Ref<Object> window(window_);
        taken = window_state(window.object()).press_key(key);
    });
    return taken;
}

bool ControlState::menu_requested(front::Point at) {
    bool taken = false;
    deliver([&, this] {
        if (window_ == nullptr) return;
        const front::Point in_content{wrapping_sum(bounds_.left, at.left), wrapping_sum(bounds_.top, at.top)};
        taken = show_contextual_menu(self_, window_, in_content);
    });
    return taken;
}

void ControlState::focus_changed(bool has_focus) {
    deliver([=, this] {
        const Ref<Object> kept(self_);
        const Ref<Object> pane = pane_of(self_);
        if (!pane || window_ == nullptr) return;
        const Ref<Object> window(window_);
        tell_focus_around(window.object(), has_focus);
        has_focus ? pane_got_focus(pane.object()) : pane_lost_focus(pane.object());
    });
}

}  // namespace tavrik::core
