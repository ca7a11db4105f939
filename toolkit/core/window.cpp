// How windows begin, are shown and act.
#include "toolkit/core/window.h"

#include "toolkit/core/control.h"
#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/mdi_window.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/pane.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/streams.h"
#include "toolkit/core/window_list.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/window.h>

#include <algorithm>
#include <initializer_list>

namespace tavrik {
namespace core {
namespace {

constinit ObjectField controls_field{"Window", "_mControls"};
constinit ObjectField control_list_field{"Window", "_mControlList"};
constinit ObjectField menu_handlers_field{"Window", "_mMenuHandlers"};

constinit Event<void()> layout{"Window", "Layout"};
constinit Event<void()> create_controls{"Window", "CreateControls"};
constinit Event<void(Object*)> add_menu_handlers{"Window", "AddMenuHandlers"};
constinit Event<void()> setup_bindings{"Window", "SetupBindings"};
constinit Event<void()> opened_event{"Window", "Open"};
constinit Operation<void()> call_open_event{"Control", "_CallOpenEvent", "%%"};
constinit SharedOperation<void()> call_update_dirty_windows{"Window", "_UpdateDirtyWindows", "%%"};
constinit SharedOperation<void(Object*)> add_dirty_window{"Window", "_AddDirtyWindow", "%%o<Window>"};
constinit SharedOperation<void(Object*)> remove_dirty_window{"Window", "_RemoveDirtyWindow", "%%o<Window>"};

void open_controls(Object* window) {
    const auto controls = control_list(window);
    for (std::int32_t i = 0; i <= controls->upper_bound(); ++i) call_open_event(controls->at(i).object());
}

void find_initial_parents(Object* window) {
    const auto controls = control_list(window);
    for (std::int32_t i = 0; i <= controls->upper_bound(); ++i)
        control_state(controls->at(i).object()).find_initial_parent();
}

void open(Object* window) {
    window_state(window).opened = true;
    opened_event(window);
}

// Each step may close the window. Whether it has not.
bool run(Object* window, std::initializer_list<void (*)(Object*)> steps) {
    return std::ranges::all_of(steps, [window](const auto step) {
        step(window);
        return is_open(window);
    });
}

void construct(Object* window) {
    const bool made = run(window, {
                                      create_content_pane,
                                      [](Object* self) { layout(self); },
                                      [](Object* self) { create_controls(self); },
                                      find_initial_parents,
                                      [](Object* self) { add_menu_handlers(self, self); },
                                      [](Object* self) { setup_bindings(self); },
                                  });
    WindowState& state = window_state(window);
    // A container opens where it is embedded.
    if (!made || state.is_container()) return;
    open_window(window);
    if (!is_open(window)) return;
    mdi_windows_have_a_window();
    if (state.description.visible) state.show();
}

// nullptr where a window can't be shown within this one.
Object* shown_owner(Object* window, Object* owner) {
    if (owner != nullptr) owner = window_state(owner).outermost().self();
    if (owner == nullptr || owner == window || !window_state(owner).is_on_screen()) return nullptr;
    // Two windows can't stay above each other.
    for (Object* above = owner; above != nullptr; above = window_state(above).owner()) {
        if (above == window) return nullptr;
    }
    return owner;
}

void show_in_front(Object* window) {
    WindowState& state = window_state(window);
    const bool was_shown = state.is_on_screen();
    state.show();
    if (was_shown && state.face() != nullptr) on_main_stack([&] { state.face()->bring_to_front(); });
}

void place_beside(Object* window, Object* other, std::int32_t side) {
    constexpr std::int32_t kLeft = 1, kRight = 2, kAbove = 3, kBelow = 4;
    WindowState& state = window_state(window);
    const front::Rect beside = window_state(other).bounds();
    front::Rect place = state.description.content;
    switch (side) {
        case kLeft:
            place = {beside.left - place.width, beside.top, place.width, place.height};
            break;
        case kRight:
            place = {beside.left + beside.width, beside.top, place.width, place.height};
            break;
        case kAbove:
            place = {beside.left, beside.top - place.height, place.width, place.height};
            break;
        case kBelow:
            place = {beside.left, beside.top + beside.height, place.width, place.height};
            break;
        default:
            return;
    }
    state.description.placement = front::Placement::kWhereTold;
    state.set_bounds(place);
}

void show_modal(Object* window, Object* owner) {
    const Ref<Object> kept(window);
    WindowState& state = window_state(window);
    if (state.is_container()) return show_in_front(window);
    // A window that waits already goes on doing so, further out.
    state.set_owner(owner);
    state.set_modality(owner == nullptr ? front::Modality::kProgram : front::Modality::kWindow);
    show_in_front(window);
    flush_all_streams();
    on_main_stack([&] {
        while (state.is_on_screen() && !has_quit() && front().pump(true)) {
        }
    });
    state.set_modality(front::Modality::kNone);
}

}  // namespace

void open_window(Object* window) { run(window, {open_controls, open}); }

Ref<ArrayOf<Object>> control_list(Object* window) {
    return static_ref<ArrayOf<Object>>(control_list_field.get(window));
}

Ref<Object> control_names(Object* window) { return controls_field.get(window); }

void update_dirty_windows() {
    if (RuntimeFindClass("Window") == nullptr) return;
    look_at_windows();
    try {
        call_update_dirty_windows();
    } catch (...) {
        // Once is enough to be told.
        for (const Ref<Object>& window : open_windows()) remove_dirty_window(window.object());
        for (const Ref<Object>& container : open_containers()) remove_dirty_window(container.object());
        throw;
    }
}

namespace {

void refresh(Object* window, const front::Rect* part) {
    WindowState& state = window_state(window);
    if (state.host() != nullptr) {
        state.host()->refresh(part);
    } else if (state.face() != nullptr) {
        on_main_stack([&] { state.face()->refresh(part); });
    } else {
        return;
    }
    if (is_open(window)) add_dirty_window(window);
}

}  // namespace
}  // namespace core

using core::window_state;

void RuntimeCreateWindow(Object* window) {
    if (window->native != nullptr) return;
    window->native = new core::WindowState(window);
    const Ref<Object> controls = RuntimeNewObject(core::need_class("Dictionary"));
    core::controls_field.set(window, controls.object());
    core::control_list_field.set(window, ArrayOf<Object>::make().object());
    const Ref<Object> handlers = RuntimeNewObject(core::need_class("Dictionary"));
    core::menu_handlers_field.set(window, handlers.object());
}

void RuntimeViewDestructor(Object* window) {
    if (window->native == nullptr) return;
    window_state(window).drop_face();
    delete std::exchange(window->native, nullptr);
}

void WindowDefaultConstructor(Object* window) {
    const Ref<Object> kept(window);
    window_state(window);
    core::enter_open_windows(window);
    try {
        core::construct(window);
    } catch (const RaisedException&) {
        if (!window_state(window).opened) core::give_up_window(window);
        throw;
    }
}

void RuntimeShowWindow(Object* window) {
    const Ref<Object> kept(window);
    core::show_in_front(window);
}

void RuntimeHideWindow(Object* window) { window_state(window).hide(); }

void RuntimeShowWithinWindow(Object* window, Object* other, std::int32_t side) {
    const Ref<Object> kept(window);
    if (window_state(window).is_container()) return core::show_in_front(window);
    Object* const owner = core::shown_owner(window, other);
    window_state(window).set_owner(owner);
    if (owner != nullptr) core::place_beside(window, owner, side);
    core::show_in_front(window);
}

void RuntimeShowModal(Object* window) { core::show_modal(window, nullptr); }

void RuntimeShowModalWithinWindow(Object* window, Object* other) {
    core::show_modal(window, core::shown_owner(window, other));
}

void WindowMaximize(Object* window) { window_state(window).set_size_state(front::WindowSize::kMaximized); }
void WindowMinimize(Object* window) { window_state(window).set_size_state(front::WindowSize::kMinimized); }
void WindowRestore(Object* window) { window_state(window).set_size_state(front::WindowSize::kNormal); }

void WindowMove(Object* window, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    const Ref<Object> kept(window);
    core::WindowState& state = window_state(window);
    state.description.placement = front::Placement::kWhereTold;
    state.set_bounds({left, top, width, height});
}

void formRefresh(Object* window, bool) { core::refresh(window, nullptr); }

void formRefreshRect(Object* window, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height,
                     bool) {
    const front::Rect part{left, top, width, height};
    core::refresh(window, &part);
}

void WindowForceUpdateFrontBuffer(Object* window) {
    core::WindowState& state = window_state(window).outermost();
    if (state.face() != nullptr) core::on_main_stack([&] { state.face()->update_now(); });
}

void WindowAddMenuHandler(Object* window, const String& item, Function handler) {
    window_state(window).menu_handlers.add(core::menu_handlers_field.get(window).object(), item, handler);
}

void enableMenuItems(std::int32_t) {
    core::need_main_thread();
    if (Object* const window = core::frontmost_window()) core::enable_menu_items(window);
}

}  // namespace tavrik
