// What the person does in a window, on its way to the panes.
#include "toolkit/core/contextual_menu.h"
#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/pane.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"

#include <functional>

namespace tavrik::core {
namespace {

constinit Operation<bool(std::int32_t, std::int32_t, std::int32_t)> pressed{"_Pane", "HandleMouseDown", "%b%i4i4i4"};
constinit Operation<void(std::int32_t, std::int32_t)> pointer_moved{"_Pane", "HandleMouseMove", "%%i4i4"};
constinit Operation<bool(std::int32_t, std::int32_t, std::int32_t, std::int32_t)> wheeled{"_Pane", "HandleMouseWheel",
                                                                                          "%b%i4i4i4i4"};
constinit Operation<bool(const String&, std::int32_t, std::int32_t)> key_pressed{"_Pane", "HandleKeyDown", "%b%si4i4"};
constinit Event<void(std::int32_t, std::int32_t)> drag_event{"Window", "MouseDrag"};
constinit Event<void(std::int32_t, std::int32_t)> up_event{"Window", "MouseUp"};

// One event with the root of the window's panes; nothing once the window is closed.
void with_content_pane(Object* window, const std::function<void(Object*)>& call) {
    deliver([&] {
        const Ref<Object> kept(window);
        if (const Ref<Object> pane = content_pane_of(window)) call(pane.object());
    });
}

}  // namespace

bool WindowState::mouse_down(front::Point at, front::MouseButton button) {
    bool taken = false;
    with_content_pane(self_,
                      [&](Object* pane) { taken = pressed(pane, at.left, at.top, static_cast<std::int32_t>(button)); });
    return taken;
}

void WindowState::mouse_dragged(front::Point at) {
    deliver([=, this] {
        const Ref<Object> kept(self_);
        drag_event(self_, at.left, at.top);
    });
}

void WindowState::mouse_up(front::Point at) {
    deliver([=, this] {
        const Ref<Object> kept(self_);
        up_event(self_, at.left, at.top);
    });
}

bool WindowState::mouse_wheel(front::Point at, int delta_x, int delta_y) {
    bool taken = false;
    with_content_pane(self_, [&](Object* pane) { taken = wheeled(pane, at.left, at.top, delta_x, delta_y); });
    return taken;
}

bool WindowState::key_down(const front::Key& key) {
    bool taken = false;
    deliver([&, this] {
        const Ref<Object> kept(self_);
        taken = press_key(key);
    });
    return taken;
}

bool WindowState::menu_requested(front::Point at) {
    bool taken = false;
    deliver([&, this] { taken = show_contextual_menu(nullptr, self_, at); });
    return taken;
}

void WindowState::mouse_moved(front::Point at) {
    with_content_pane(self_, [=](Object* pane) { pointer_moved(pane, at.left, at.top); });
}

void WindowState::mouse_left() {
    with_content_pane(self_, [](Object* pane) { pointer_moved(pane, kOutsideOfPanes, kOutsideOfPanes); });
}

bool WindowState::press_key(const front::Key& key) {
    const Ref<Object> pane = content_pane_of(self_);
    if (pane && key_pressed(pane.object(), String(std::string_view(key.text)), key.code, key.modifiers)) return true;
    if (host() == nullptr || host()->window() == nullptr) return false;
    const Ref<Object> around(host()->window());
    return window_state(around.object()).press_key(key);
}

}  // namespace tavrik::core
