#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/mdi_window.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/pane.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/window.h"
#include "toolkit/core/window_list.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/window.h>
#include <tavrik/wrapping.h>

#include <algorithm>
#include <utility>

namespace tavrik::core {
namespace {

constinit Operation<void()> call_activated{"Window", "_CallActivated", "%%"};
constinit Operation<void()> call_deactivated{"Window", "_CallDeactivated", "%%"};
constinit Operation<void()> call_moved{"Window", "_CallMoved", "%%"};
constinit Operation<void()> call_resized{"Window", "_CallResized", "%%"};
constinit Operation<void()> call_resizing{"Window", "_CallResizing", "%%"};
constinit Event<void()> minimized{"Window", "Minimize"};
constinit Event<void()> maximized{"Window", "Maximize"};
constinit Event<void()> restored{"Window", "Restore"};

template <class Use>
void for_each_control(Object* window, Use use) {
    const auto controls = control_list(window);
    if (!controls) return;
    for (std::int32_t i = 0; i <= controls->upper_bound(); ++i) use(controls->at(i));
}

// The least length wins over the greatest.
int held_within(int length, int least, int greatest) { return std::max({std::min(length, greatest), least, 0}); }

front::Rect held_within_limits(front::Rect content, const front::WindowDescription& window) {
    content.width = held_within(content.width, window.min_width, window.max_width);
    content.height = held_within(content.height, window.min_height, window.max_height);
    return content;
}

bool is_modal_by_itself(front::WindowFrame frame) {
    return frame == front::WindowFrame::kModal || frame == front::WindowFrame::kMovableModal;
}

}  // namespace

WindowState::WindowState(Object* self)
    : self_(self), is_container_(RuntimeObjectIsa(self, RuntimeFindClass("ContainerControl"))) {
    description.visible = is_container_;
}

WindowState::~WindowState() { part_from_host(); }

WindowState& window_state(Object* window, const char* call) {
    need_main_thread(call);
    if (window == nullptr) RaiseNilObjectException();
    if (window->native == nullptr) RuntimeCreateWindow(window);
    return *native<WindowState>(window);
}

void WindowState::set_menu_bar(Object* bar) {
    menu_bar_ = Ref<Object>(bar);
    menus_changed();
}

bool WindowState::fills_screen() const {
    return description.full_screen || description.size_state == front::WindowSize::kMaximized;
}

front::Rect WindowState::bounds() const { return fills_screen() && filled_ ? *filled_ : description.content; }

front::Rect& WindowState::bounds_now() {
    if (!fills_screen()) return description.content;
    if (!filled_) filled_ = description.content;
    return *filled_;
}

void WindowState::tell_bounds(const front::Rect& before) {
    const Ref<Object> self(self_);
    const front::Rect now = bounds();
    lay_out();
    if (opened && (now.left != before.left || now.top != before.top)) call_moved(self_);
    if (!opened || (now.width == before.width && now.height == before.height)) return;
    owes_resized_ = outermost().being_resized_;
    owes_resized_ ? call_resizing(self_) : call_resized(self_);
}

void WindowState::set_bounds(const front::Rect& wanted) {
    if (host() != nullptr) return host()->set_bounds(wanted);
    const front::Rect before = bounds();
    description.content = held_within_limits(wanted, description);
    changed();
    tell_bounds(before);
}

void WindowState::limits_changed() { set_bounds(description.content); }

void WindowState::set_full_screen(bool full_screen) {
    if (is_container_) return;
    const front::Rect before = bounds();
    if (std::exchange(description.full_screen, full_screen) != full_screen) filled_.reset();
    changed();
    tell_bounds(before);
}

void WindowState::set_size_state(front::WindowSize wanted) {
    if (description.size_state == wanted || is_container_) return;
    const Ref<Object> self(self_);
    const front::Rect before = bounds();
    description.size_state = wanted;
    if (!description.full_screen) filled_.reset();
    changed();
    tell_size_state();
    tell_bounds(before);
}

void WindowState::tell_size_state() {
    const front::WindowSize now = description.size_state;
    if (std::exchange(told_size_state_, now) == now || !opened) return;
    switch (now) {
        case front::WindowSize::kNormal:
            return restored(self_);
        case front::WindowSize::kMinimized:
            return minimized(self_);
        case front::WindowSize::kMaximized:
            return maximized(self_);
    }
}

front::WindowDescription WindowState::described() const {
    front::WindowDescription shown = description;
    if (shown.title.empty()) shown.title = title_of_untitled_windows();
    shown.modality = modality_;
    if (is_modal_by_itself(description.frame)) shown.modality = front::Modality::kProgram;
    if (description.frame == front::WindowFrame::kSheet && owner_ && modality_ == front::Modality::kNone)
        shown.modality = front::Modality::kWindow;
    return shown;
}

void WindowState::make_face() {
    face_ = front().make_window(*this);
    if (owner_) face_->set_owner(window_state(owner_.object()).face());
    front::WindowDescription hidden = described();
    hidden.visible = false;
    face_->apply(hidden);
    menus_stale_ = true;
    apply_menus();
    attach_controls();
}

front::ContainerFace* WindowState::contents() const {
    if (host() != nullptr) return host()->face();
    return face_.get();
}

void WindowState::attach(ControlState& control) {
    front::ContainerFace* container = contents();
    if (control.parent() != nullptr) container = control.parent()->face();
    if (container != nullptr && control.face() == nullptr) on_main_stack([&] { control.attach(*container); });
}

void WindowState::attach_controls() {
    for_each_control(self_, [this](const Ref<Object>& each) {
        ControlState& control = control_state(each.object());
        if (control.parent() == nullptr) attach(control);
    });
}

void WindowState::detach_controls() {
    for_each_control(self_, [](const Ref<Object>& control) { control_state(control.object()).detach(); });
}

HostState& WindowState::future_host() {
    if (host_ == nullptr) {
        host_control_ = RuntimeNewObject(need_class("EmbeddedWindowControl"));
        host_ = &host_state(host_control_.object());
        host_->container = self_;
    }
    return *host_;
}

void WindowState::embed() {
    is_embedded_ = true;
    follow_host();
}

void WindowState::follow_host() {
    const front::Rect before = bounds();
    description.visible = host_->visible;
    description.content = host_->bounds();
    tell_bounds(before);
}

void WindowState::part_from_host() {
    if (host_ != nullptr) host_->container = nullptr;
    is_embedded_ = false;
    host_ = nullptr;
    const Ref<Object> gone = std::exchange(host_control_, nullptr);
}

WindowState& WindowState::outermost() {
    const HostState* const host = this->host();
    return host == nullptr || host->window() == nullptr ? *this : window_state(host->window()).outermost();
}

bool WindowState::active() const {
    if (host() == nullptr || host()->window() == nullptr) return active_;
    return window_state(host()->window()).active();
}

void WindowState::lay_out() {
    const front::Rect now = bounds();
    const front::Rect change{0, 0, wrapping_difference(now.width, laid_out_.width),
                             wrapping_difference(now.height, laid_out_.height)};
    if (change == front::Rect()) return;
    laid_out_ = now;
    set_content_size(self_, now.width, now.height);
    for_each_control(self_, [&](const Ref<Object>& each) {
        ControlState& control = control_state(each.object());
        if (control.parent() == nullptr) control.follow_parent(change);
    });
}

front::Point WindowState::pointer() const {
    if (host() != nullptr && host()->window() != nullptr) {
        const front::Point outside = window_state(host()->window()).pointer();
        return {wrapping_difference(outside.left, host()->bounds().left),
                wrapping_difference(outside.top, host()->bounds().top)};
    }
    if (!face_) return {};
    return on_main_stack([this] { return face_->pointer(); }).value_or(front::Point());
}

void WindowState::show() {
    if (closing == Closing::kClosed) return;
    const Ref<Object> self(self_);
    description.visible = true;
    if (is_container_) return changed();
    if (!face_) {
        description.minimize_button = bool_property(self_, "MinimizeButton");
        on_main_stack([this] { make_face(); });
    }
    enable_menu_items(self_);
    changed();
}

void WindowState::hide() {
    description.visible = false;
    changed();
}

void WindowState::changed() {
    if (host() != nullptr) {
        host()->visible = description.visible;
        return host()->changed();
    }
    if (face_) on_main_stack([this] { face_->apply(described()); });
}

void WindowState::menus_changed() {
    if (!face_) return;
    menus_stale_ = true;
    apply_menus_soon();
}

void WindowState::apply_menus() {
    if (!std::exchange(menus_stale_, false) || !face_) return;
    on_main_stack([this] { face_->apply_menus(describe_menus(menu_bar_of(self_))); });
}

void WindowState::look_at_stored_properties() {
    if (!face_) return;
    const bool can_minimize = bool_property(self_, "MinimizeButton");
    if (std::exchange(description.minimize_button, can_minimize) != can_minimize) changed();
}

void WindowState::drop_face() {
    detach_controls();
    if (face_) on_main_stack([this] { face_.reset(); });
}

void WindowState::set_owner(Object* owner) {
    const bool loses_it = owner == nullptr && owner_;
    owner_ = Ref<Object>(owner);
    if (face_) {
        on_main_stack([&] { face_->set_owner(owner == nullptr ? nullptr : window_state(owner).face()); });
        // Nobody could reach what it is modal to any more.
        if (loses_it && modality_ == front::Modality::kWindow) return hide();
        changed();
    }
}

void WindowState::set_modality(front::Modality modality) {
    if (std::exchange(modality_, modality) != modality) changed();
}

// A report may end the window: its object is kept until the report is over.
template <class Report>
void WindowState::take(Report report) {
    deliver([&] {
        const Ref<Object> self(self_);
        report();
    });
}

void WindowState::close_requested() {
    take([this] { close_window(self_, AppIsQuitting::kNo); });
}

void WindowState::activated(bool active) {
    take([this, active] {
        active_ = active;
        if (active) move_to_front(self_);
        tell_active(active);
    });
}

void WindowState::tell_containers_resized(Object* window) {
    for (const Ref<Object>& container : containers_in(window)) {
        if (std::exchange(window_state(container.object()).owes_resized_, false)) call_resized(container.object());
        tell_containers_resized(container.object());
    }
}

void WindowState::tell_active(bool active) {
    active ? call_activated(self_) : call_deactivated(self_);
    for (const Ref<Object>& container : containers_in(self_)) window_state(container.object()).tell_active(active);
}

void WindowState::moved(int left, int top) {
    take([=, this] {
        const front::Rect before = bounds();
        bounds_now().left = left;
        bounds_now().top = top;
        tell_bounds(before);
    });
}

void WindowState::resized(int width, int height, front::ResizePhase phase) {
    take([=, this] {
        const bool under_way = phase == front::ResizePhase::kUnderWay;
        if (under_way && !before_resize_ && !fills_screen()) before_resize_ = description.content;
        if (under_way && !description.live_resize) return;
        bounds_now().width = width;
        bounds_now().height = height;
        if (!under_way) before_resize_.reset();
        being_resized_ = under_way;
        lay_out();
        under_way ? call_resizing(self_) : call_resized(self_);
        if (!under_way) tell_containers_resized(self_);
    });
}

void WindowState::size_state_changed(front::WindowSize now) {
    take([=, this] {
        if (description.size_state == now) return;
        const front::Rect here = bounds();
        description.size_state = now;
        filled_.reset();
        if (now == front::WindowSize::kMaximized) {
            // A desktop may tell the new size before it tells why.
            filled_ = here;
            if (before_resize_) description.content = *std::exchange(before_resize_, std::nullopt);
        }
        being_resized_ = false;
        lay_out();
        tell_size_state();
        tell_containers_resized(self_);
    });
}

void WindowState::menus_opening() {
    take([this] { enable_menu_items(self_); });
}

void WindowState::menu_chosen(front::MenuId chosen) {
    take([this, chosen] { choose_menu_item(self_, chosen); });
}

}  // namespace tavrik::core
