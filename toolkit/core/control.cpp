#include "toolkit/core/control.h"

#include "toolkit/core/pane.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"

#include <tavrik/control.h>
#include <tavrik/exception.h>
#include <tavrik/fields.h>
#include <tavrik/runtime.h>
#include <tavrik/wrapping.h>

#include <utility>

namespace tavrik {

using core::control_state;

namespace {

constinit core::Event<void()> closed_event{"Control", "Close"};
constinit core::Operation<void(Object*)> set_window{"Control", "_SetWindow", "%%o<Window>"};
constinit core::Operation<void()> close_pane{"_Pane", "Close", "%%"};
constinit core::ObjectField pane_field{"Control", "_mImp"};
constinit core::Property<std::int32_t> tab_panel_index{"Control", "TabPanelIndex"};

void raise_closed(core::ControlState& state) {
    state.is_closing = true;
    try {
        closed_event(state.self());
    } catch (...) {
        state.is_closing = false;
        throw;
    }
    state.is_closing = false;
}

}  // namespace

void RuntimeControlInitializer(Object* control) { control_state(control); }
void RuntimeControlFinalizer(Object* control) { delete std::exchange(control->native, nullptr); }
void RectControlDefaultConstructor(Object* control) { control_state(control); }

void ControlClose(Object* control) {
    const Ref<Object> kept(control);
    core::ControlState& state = control_state(control);
    if (state.window() == nullptr) return;
    // Inside of its own Close event the window has closed, and takes the faces of all that is in it.
    if (state.is_closing) return state.detach();
    const Ref<Object> window(state.window());
    raise_closed(state);
    if (const Ref<Object> pane = core::pane_of(control)) close_pane(pane.object());
    pane_field.set(control, nullptr);
    set_window(control, nullptr);
    state.leave();
    core::control_has_closed(window.object(), control);
}

Ref<Object> controlWindowGetter(Object* control, std::int32_t) { return {control_state(control).window()}; }

void ControlTabPanelIndexSetter(Object* control, std::int32_t field, std::int32_t index) {
    intSetter(control, field, index);
    control_state(control).set_panel_index(index);
}
std::int32_t ControlPanelIndexGetter(Object* control, std::int32_t) { return control_state(control).panel_index(); }
void ControlPanelIndexSetter(Object* control, std::int32_t, std::int32_t index) { tab_panel_index.set(control, index); }

namespace {

// Of the window's content, or its corner where there is no pointer.
front::Point pointer_on(Object* control, const char* call = __builtin_FUNCTION()) {
    const core::ControlState& state = control_state(control, call);
    const front::Point at = state.window() == nullptr ? front::Point() : core::window_state(state.window()).pointer();
    return {wrapping_difference(at.left, state.bounds().left), wrapping_difference(at.top, state.bounds().top)};
}

// The number of a rectangle that a selector chooses.
std::int32_t front::Rect::*const kParts[] = {&front::Rect::left, &front::Rect::top, &front::Rect::width,
                                             &front::Rect::height};

template <class Value>
void set(Object* control, Value core::ControlState::*part, Value value, const char* call = __builtin_FUNCTION()) {
    core::ControlState& state = control_state(control, call);
    state.*part = value;
    state.changed();
}

using State = core::ControlState;

}  // namespace

std::int32_t controlMouseXGetter(Object* control, std::int32_t) { return pointer_on(control).left; }
std::int32_t controlMouseYGetter(Object* control, std::int32_t) { return pointer_on(control).top; }
std::int32_t controlMacControlHandleGetter(Object* control, std::int32_t) {
    return static_cast<std::int32_t>(control_state(control).handle());
}

std::int32_t ctlPosGetter(Object* control, std::int32_t which) {
    return control_state(control).bounds().*kParts[which];
}
void ctlPosSetter(Object* control, std::int32_t which, std::int32_t value) {
    core::ControlState& state = control_state(control);
    front::Rect bounds = state.bounds();
    bounds.*kParts[which] = value;
    state.set_bounds(bounds);
}
void RuntimeControlMove(Object* control, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    control_state(control).set_bounds({left, top, width, height});
}

bool controlVisibleGetter(Object* control, std::int32_t) { return control_state(control).visible; }
void ControlVisibleSetter(Object* control, std::int32_t, bool visible) { set(control, &State::visible, visible); }
bool controlEnabledGetter(Object* control, std::int32_t) { return control_state(control).enabled; }
void controlEnabledSetter(Object* control, std::int32_t, bool enabled) { set(control, &State::enabled, enabled); }
bool controlActiveGetter(Object* control, std::int32_t) {
    const State& state = control_state(control);
    return state.enabled_throughout() && state.window() != nullptr && core::window_state(state.window()).active();
}
bool controlAutoDeactivateGetter(Object* control, std::int32_t) { return control_state(control).auto_deactivate; }
void controlAutoDeactivateSetter(Object* control, std::int32_t, bool automatic) {
    set(control, &State::auto_deactivate, automatic);
}
bool controlLockLeftGetter(Object* control, std::int32_t) { return control_state(control).lock_left; }
void controlLockLeftSetter(Object* control, std::int32_t, bool locked) { control_state(control).lock_left = locked; }
bool controlLockTopGetter(Object* control, std::int32_t) { return control_state(control).lock_top; }
void controlLockTopSetter(Object* control, std::int32_t, bool locked) { control_state(control).lock_top = locked; }
bool controlLockRightGetter(Object* control, std::int32_t) { return control_state(control).lock_right; }
void controlLockRightSetter(Object* control, std::int32_t, bool locked) { control_state(control).lock_right = locked; }
bool controlLockBottomGetter(Object* control, std::int32_t) { return control_state(control).lock_bottom; }
void controlLockBottomSetter(Object* control, std::int32_t, bool locked) {
    control_state(control).lock_bottom = locked;
}

Ref<Object> ControlParentGetter(Object* control, std::int32_t) {
    const State* const parent = control_state(control).parent();
    return parent == nullptr ? nullptr : Ref<Object>(parent->self());
}
void ControlParentSetter(Object* control, std::int32_t, Object* parent) {
    control_state(control).set_parent(parent == nullptr ? nullptr : &control_state(parent));
}
void ControlInitialParentSetter(Object* control, std::int32_t, const String& parent) {
    control_state(control).set_initial_parent(parent);
}
std::int32_t ControlTabIndexGetter(Object* control, std::int32_t) { return control_state(control).tab_index; }
void ControlTabIndexSetter(Object* control, std::int32_t, std::int32_t index) {
    set(control, &State::tab_index, index);
}

void controlHelpTagSetter(Object* control, std::int32_t field, const String& help) {
    stringSetter(control, field, help);
    control_state(control).changed();
}
void controlBalloonHelpSetter(Object* control, std::int32_t field, const String& help) {
    controlHelpTagSetter(control, field, help);
}
void controlDisabledBalloonHelpSetter(Object* control, std::int32_t field, const String& help) {
    controlHelpTagSetter(control, field, help);
}
void controlMouseCursorSetter(Object* control, std::int32_t field, Object* cursor) {
    objSetter(control, field, cursor);
    control_state(control).changed();
}

void RuntimeSetFocus(Object* control) { control_state(control).set_focus(); }

void RuntimeControlRefresh(Object* control, bool) { control_state(control).refresh(nullptr); }
void RuntimeControlInvalidate(Object* control, bool) { control_state(control).refresh(nullptr); }
void RuntimeControlRefreshRect(Object* control, std::int32_t left, std::int32_t top, std::int32_t width,
                               std::int32_t height, bool) {
    const front::Rect part{left, top, width, height};
    control_state(control).refresh(&part);
}
void RuntimeControlInvalidateRect(Object* control, std::int32_t left, std::int32_t top, std::int32_t width,
                                  std::int32_t height, bool erase) {
    RuntimeControlRefreshRect(control, left, top, width, height, erase);
}

void controlAcceptTextDrop(Object* control) { control_state(control).accepted_drops().text = true; }
void controlAcceptPictureDrop(Object* control) { control_state(control).accepted_drops().pictures = true; }
void controlAcceptFileDrop(Object* control, const String& types) {
    core::AcceptedDrops::add(control_state(control).accepted_drops().file_types, types.view());
}
void controlAcceptMacDataDrop(Object* control, const String& type) {
    core::AcceptedDrops::add(control_state(control).accepted_drops().data_types, type.view());
}

void ControlAddMenuHandler(Object* control, const String& item, Function handler) {
    control_state(control).menu_handlers.add(item, handler);
}

}  // namespace tavrik
