#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"
#include "toolkit/core/window_list.h"

#include <tavrik/container_control.h>
#include <tavrik/control.h>
#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/window.h>

#include <array>
#include <string>

namespace tavrik {
namespace core {
namespace {

constinit std::array host_bools{
    Property<bool>{"RectControl", "LockLeft"},       Property<bool>{"RectControl", "LockTop"},
    Property<bool>{"RectControl", "LockRight"},      Property<bool>{"RectControl", "LockBottom"},
    Property<bool>{"RectControl", "AutoDeactivate"}, Property<bool>{"Canvas", "AcceptFocus"},
    Property<bool>{"Canvas", "AcceptTabs"},          Property<bool>{"Canvas", "UseFocusRing"},
    Property<bool>{"Canvas", "EraseBackground"},
};
constinit Property<std::int32_t> host_page{"Control", "TabPanelIndex"};
constinit Property<std::int32_t> host_index{"Control", "Index"};
constinit Property<String> host_name{"Control", "Name"};
constinit Property<String> host_help{"RectControl", "HelpTag"};
constinit Property<String> host_disabled_help{"RectControl", "DisabledBalloonHelp"};

[[noreturn]] void refuse(const char* why) { RuntimeRaise("InvalidParentException", why); }

Object* host_of(Object* container) { return window_state(container).future_host().self(); }

Property<bool>& bool_named(HostValue which) { return host_bools.at(static_cast<std::size_t>(which)); }

// Each has its place among those of one class, as the elements of a control array.
void name_host(Object* host, Object* container, Object* window) {
    const String name(view(container->record->name));
    std::int32_t index = 0;
    while (RuntimeControlArrayItemReference(window, name, index)) ++index;
    host_name.set<const String&>(host, name);
    host_index.set(host, index);
}

void check(Object* container, Object* window) {
    if (!is_open(container)) refuse("a container that is closed can't be embedded");
    if (window_state(container).host() != nullptr) refuse("a container can be embedded only once");
    if (window == nullptr) refuse("a container needs a window to be embedded in");
    for (Object* around = window; around != nullptr;) {
        if (around == container) refuse("a container can't be embedded in itself or in what lies in it");
        if (!is_open(around) || window_state(around).closing != WindowState::Closing::kNo)
            refuse("a container can't be embedded in a window that is closed");
        const HostState* const host = window_state(around).host();
        around = host == nullptr ? nullptr : host->window();
    }
}

struct Place {
    Object* window;
    ControlState* parent = nullptr;
    front::Rect bounds;
};

void embed(Object* container, const Place& place) {
    const Ref<Object> kept(container);
    const Ref<Object> kept_window(place.window);
    WindowState& state = window_state(container);
    HostState& host = state.future_host();
    const Ref<Object> kept_host(host.self());

    ControlState* parent = place.parent;
    if (const Ref<Object> wanted = std::exchange(host.wanted_parent, nullptr); wanted && parent == nullptr) {
        ControlState& known = control_state(wanted.object());
        if (known.window() == place.window) parent = &known;
    }
    name_host(host.self(), container, place.window);
    host.visible = state.description.visible;
    host.enter(place.window);
    host.set_parent(parent);
    host.set_bounds(place.bounds);
    state.embed();
    WindowAddControl(place.window, host_name.get(host.self()), host.self());
    if (host.window() != nullptr && place.parent == nullptr) host.find_initial_parent();
}

ControlState& known_control(Object* control) {
    if (control == nullptr) refuse("a container needs a control to be embedded in");
    ControlState& state = control_state(control);
    if (state.window() == nullptr) refuse("a container can't be embedded in a control that is in no window");
    return state;
}

}  // namespace
}  // namespace core

using core::host_of;
using core::window_state;

void EmbedWithin(Object* container, Object* window, std::int32_t left, std::int32_t top, std::int32_t width,
                 std::int32_t height) {
    core::check(container, window);
    core::embed(container, {window, nullptr, {left, top, width, height}});
}

void EmbedWithinControl(Object* container, Object* control, std::int32_t left, std::int32_t top, std::int32_t width,
                        std::int32_t height) {
    core::ControlState& parent = core::known_control(control);
    core::check(container, parent.window());
    core::embed(container, {parent.window(), &parent, {left, top, width, height}});
}

void EmbedWithinPanel(Object* container, Object* panel, std::int32_t page, std::int32_t left, std::int32_t top,
                      std::int32_t width, std::int32_t height) {
    core::ControlState& parent = core::known_control(panel);
    if (page < 0) core::refuse("a panel has no pages below 0");
    core::check(container, parent.window());
    core::host_page.set(host_of(container), page);
    core::embed(container, {parent.window(), &parent, {left, top, width, height}});
}

bool eWindowBoolPassThroughGetter(Object* container, HostValue which) {
    return core::bool_named(which).get(host_of(container));
}
void eWindowBoolPassThroughSetter(Object* container, HostValue which, bool value) {
    core::bool_named(which).set(host_of(container), value);
    window_state(container).future_host().changed();
}
std::int32_t eWindowIntPassThroughGetter(Object* container, HostValue) {
    return core::host_page.get(host_of(container));
}
String eWindowStringPassThroughGetter(Object* container, HostValue which) {
    return (which == HostValue::kHelpTag ? core::host_help : core::host_disabled_help).get(host_of(container));
}

void eWindowTabPanelIndexSetter(Object* container, std::int32_t, std::int32_t page) {
    core::host_page.set(host_of(container), page);
}
std::int32_t eWindowTabIndexGetter(Object* container, std::int32_t) {
    return ControlTabIndexGetter(host_of(container), 0);
}
void eWindowTabIndexSetter(Object* container, std::int32_t, std::int32_t index) {
    ControlTabIndexSetter(host_of(container), 0, index);
}
bool eWindowEnabledGetter(Object* container, std::int32_t) { return controlEnabledGetter(host_of(container), 0); }
void eWindowEnabledSetter(Object* container, std::int32_t, bool enabled) {
    controlEnabledSetter(host_of(container), 0, enabled);
}
void eWindowAutoDeactivateSetter(Object* container, std::int32_t, bool automatic) {
    controlAutoDeactivateSetter(host_of(container), 0, automatic);
}
void eWindowHelpTagSetter(Object* container, std::int32_t, const String& help) {
    core::host_help.set<const String&>(host_of(container), help);
}
void eWindowDisabledBalloonHelpSetter(Object* container, std::int32_t, const String& help) {
    core::host_disabled_help.set<const String&>(host_of(container), help);
}

Ref<Object> eWindowParentGetter(Object* container, std::int32_t) {
    const core::HostState* const host = window_state(container).host();
    if (host == nullptr) return window_state(container).future_host().wanted_parent;
    return ControlParentGetter(host->self(), 0);
}
void eWindowParentSetter(Object* container, std::int32_t, Object* parent) {
    core::HostState* const host = window_state(container).host();
    if (host != nullptr) return ControlParentSetter(host->self(), 0, parent);
    window_state(container).future_host().wanted_parent = Ref<Object>(parent);
}
void eWindowInitialParentSetter(Object* container, std::int32_t, const String& parent) {
    ControlInitialParentSetter(host_of(container), 0, parent);
}

Ref<Object> eWindowContainingWindowGettter(Object* container, std::int32_t) {
    const core::HostState* const host = window_state(container).host();
    return host == nullptr ? nullptr : Ref<Object>(host->window());
}
Ref<Object> eWindowControlGetter(Object* container, std::int32_t) {
    const core::HostState* const host = window_state(container).host();
    return host == nullptr ? nullptr : Ref<Object>(host->self());
}

}  // namespace tavrik
