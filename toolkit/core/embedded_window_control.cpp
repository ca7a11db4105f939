#include "toolkit/core/embedded_window_control.h"

#include "toolkit/core/pane.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"
#include "toolkit/core/window_list.h"

#include <tavrik/array.h>
#include <tavrik/embedded_window_control.h>

#include <utility>

namespace tavrik {
namespace core {
namespace {

constinit ObjectField focus_field{"Window", "_mFocusControl"};
constinit PlainField<bool> pointer_is_inside{"_Pane", "mMouseWasInBounds"};

constinit Operation<void(Object*)> enables{"Window", "_EnableMenuItems", "%%A1o<MenuItem>"};
constinit Operation<bool(Object*)> handles{"Window", "_HandleMenuCommand", "%b%o<MenuItem>"};
constinit Operation<bool(const String&)> key_down{"Window", "_KeyDown", "%b%s"};
constinit Operation<bool(std::int32_t, std::int32_t)> mouse_down{"Window", "_CallMouseDown", "%b%i4i4"};
constinit Operation<bool(std::int32_t, std::int32_t, std::int32_t, std::int32_t)> mouse_wheel{"Window", "_MouseWheel",
                                                                                              "%b%i4i4i4i4"};
constinit Operation<void()> mouse_enter{"Window", "_MouseEnter", "%%"};
constinit Operation<void()> mouse_exit{"Window", "_MouseExit", "%%"};
constinit Operation<void(Object*)> paint{"Window", "_Paint", "%%o<Graphics>"};
constinit Event<bool(std::int32_t, std::int32_t)> pressed{"Window", "MouseDown"};
constinit Event<bool(Object*, std::int32_t, std::int32_t)> constructs_menu{"Window", "ConstructContextualMenu"};
constinit Event<void(std::int32_t, std::int32_t)> mouse_drag{"Window", "MouseDrag"};
constinit Event<void(std::int32_t, std::int32_t)> mouse_up{"Window", "MouseUp"};
constinit Event<void(Object*, std::int32_t)> drop_object{"Window", "DropObject"};
constinit Event<void()> got_focus{"ContainerControl", "GotFocus"};
constinit Event<void()> lost_focus{"ContainerControl", "LostFocus"};

constinit Operation<void(std::int32_t, std::int32_t)> pane_moved{"_Pane", "HandleMouseMove", "%%i4i4"};
constinit Operation<void(Object*)> pane_enables{"_Pane", "EnableMenuItems", "%%A1o<MenuItem>"};
constinit Operation<bool(Object*)> pane_handles{"_Pane", "HandleMenuCommand", "%b%o<MenuItem>"};
constinit Operation<void()> enable{"MenuItem", "Enable", "%%"};

void enable_those_of(const MenuHandlers& handlers, Object* items) {
    auto& array = *static_cast<ArrayOf<Object>*>(items);
    for (std::int32_t i = 0; i <= array.upper_bound(); ++i) {
        const Ref<Object> item = array.at(i);
        if (handlers.has(text_property(item.object(), "Name").view())) enable(item.object());
    }
}

}  // namespace

std::unique_ptr<ControlState> make_host_state(Object* host) { return std::make_unique<HostState>(host); }

HostState& host_state(Object* host) { return static_cast<HostState&>(control_state(host)); }

std::vector<Ref<Object>> containers_in(Object* window) {
    std::vector<Ref<Object>> containers;
    const auto controls = control_list(window);
    for (std::int32_t i = 0; controls && i <= controls->upper_bound(); ++i) {
        const auto* const host = dynamic_cast<const HostState*>(&control_state(controls->at(i).object()));
        if (host != nullptr && host->container != nullptr) containers.emplace_back(host->container);
    }
    return containers;
}

void tell_focus_around(Object* container, bool has_focus) {
    const HostState* host = window_state(container).host();
    for (; host != nullptr && host->window() != nullptr; host = window_state(host->window()).host()) {
        Object* const window = host->window();
        if (has_focus) {
            focus_field.set(window, host->self());
        } else if (focus_field.peek(window) == host->self()) {
            focus_field.set(window, nullptr);
        }
    }
}

bool HostState::is_in_place() const { return container != nullptr && window_state(container).host() == this; }

void HostState::leave() {
    const Ref<Object> kept(self());
    ending = true;
    // Its Close event may have gone to another handler.
    if (container != nullptr) close_with_host(container);
    ControlState::leave();
}

// The container's own event has been raised by then, through the host's.
void HostState::enable_menu_items(Object* items) {
    const Ref<Object> inner(container);
    if (!inner) return;
    if (const Ref<Object> focus = focus_field.get(container)) {
        enable_those_of(control_state(focus.object()).menu_handlers, items);
        if (const Ref<Object> pane = pane_of(focus.object())) pane_enables(pane.object(), items);
    }
    enable_those_of(window_state(inner.object()).menu_handlers, items);
}

bool HostState::handle_menu_command(Object* item) {
    const Ref<Object> inner(container);
    if (!inner) return false;
    const std::string name(text_property(item, "Name").view());
    if (const Ref<Object> focus = focus_field.get(container)) {
        if (control_state(focus.object()).menu_handlers.call(focus.object(), name)) return true;
        const Ref<Object> pane = pane_of(focus.object());
        if (pane && pane_handles(pane.object(), item)) return true;
    }
    return window_state(inner.object()).menu_handlers.call(inner.object(), name) || handles(inner.object(), item);
}

// The host's own handler is there always, and passes on to the container.
bool HostState::hears_presses() const {
    return container != nullptr && (pressed.handled(container) || constructs_menu.handled(container));
}

void HostState::describe_canvas(front::CanvasDescription& canvas) const {
    CanvasState::describe_canvas(canvas);
    if (container == nullptr) return;
    const front::WindowDescription& inner = window_state(container).description;
    canvas.background = inner.background;
    if (inner.cursor) canvas.cursor = inner.cursor;
    if (canvas.help.empty()) canvas.help = inner.help;
}

void HostState::attach_contents() {
    if (is_in_place()) window_state(container).attach_controls();
}

void HostState::detach_contents() {
    if (is_in_place()) window_state(container).detach_controls();
}

void HostState::state_changed() {
    if (is_in_place()) window_state(container).follow_host();
}

namespace {

// Nothing for a host whose container has ended.
template <class Use>
auto with_container(Object* host, Use use) -> decltype(use(host)) {
    const Ref<Object> container(host_state(host).container);
    if (!container) return decltype(use(host))();
    return use(container.object());
}

}  // namespace
}  // namespace core

using core::with_container;

void EmbeddedWindowControlInitializer(Object* host) { core::control_state(host); }
void EmbeddedWindowControlFinalizer(Object* host) { core::control_state(host).detach(); }

// What the items are is told to the host's pane.
void ewcEnableMenuItems(Object* host) {
    with_container(host, [](Object* container) { core::enables(container, ArrayOf<Object>::make().object()); });
}
void ewcGotFocus(Object* host) {
    with_container(host, [](Object* container) { core::got_focus(container); });
}
void ewcLostFocus(Object* host) {
    with_container(host, [](Object* container) { core::lost_focus(container); });
}
bool ewcKeyDown(Object* host, const String& key) {
    return with_container(host, [&](Object* container) { return core::key_down(container, key); });
}
bool ewcMouseDown(Object* host, std::int32_t x, std::int32_t y) {
    return with_container(host, [=](Object* container) { return core::mouse_down(container, x, y); });
}
void ewcMouseDrag(Object* host, std::int32_t x, std::int32_t y) {
    with_container(host, [=](Object* container) { core::mouse_drag(container, x, y); });
}
void ewcMouseUp(Object* host, std::int32_t x, std::int32_t y) {
    with_container(host, [=](Object* container) { core::mouse_up(container, x, y); });
}
bool ewcMouseWheel(Object* host, std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
    return with_container(host,
                          [=](Object* container) { return core::mouse_wheel(container, x, y, delta_x, delta_y); });
}

// The root of the container's panes would tell it of the pointer's coming at the first move.
void ewcMouseEnter(Object* host) {
    with_container(host, [](Object* container) {
        const Ref<Object> pane = core::content_pane_of(container);
        if (pane) core::pointer_is_inside.set(pane.object(), true);
        core::mouse_enter(container);
    });
}
void ewcMouseMove(Object* host, std::int32_t x, std::int32_t y) {
    with_container(host, [=](Object* container) {
        if (const Ref<Object> pane = core::content_pane_of(container)) core::pane_moved(pane.object(), x, y);
    });
}
void ewcMouseExit(Object* host) {
    with_container(host, [](Object* container) {
        const Ref<Object> pane = core::content_pane_of(container);
        if (pane) core::pointer_is_inside.set(pane.object(), false);
        core::mouse_exit(container);
        if (pane) core::pane_moved(pane.object(), core::kOutsideOfPanes, core::kOutsideOfPanes);
    });
}

void ewcPaint(Object* host, Object* graphics) {
    with_container(host, [=](Object* container) { core::paint(container, graphics); });
}
void ewcDropObject(Object* host, Object* item) {
    with_container(host, [=](Object* container) { core::drop_object(container, item, 0); });
}

void ewcOpen(Object* host) {
    with_container(host, [](Object* container) {
        if (!core::window_state(container).opened) core::open_window(container);
    });
}
void ewcClose(Object* host) {
    core::host_state(host).ending = true;
    with_container(host, [](Object* container) { core::close_with_host(container); });
}

}  // namespace tavrik
