#include "toolkit/core/control.h"

#include "toolkit/core/reflection.h"
#include "toolkit/core/window.h"

#include <tavrik/control.h>
#include <tavrik/fields.h>
#include <tavrik/runtime.h>

#include <array>

namespace tavrik {
namespace core {
namespace {

constinit ObjectField pane_field{"Control", "_mImp"};
constinit Event<void()> closed_event{"Control", "Close"};
constinit Operation<void(Object*)> set_window{"Control", "_SetWindow", "%%o<Window>"};
constinit Operation<void(Object*)> construct_pane{"_Pane", "Constructor", "%%o<Control>"};
constinit Operation<void()> close_pane{"_Pane", "Close", "%%"};

struct StateMaker {
    std::string_view class_name;
    std::unique_ptr<ControlState> (*make)(Object* control);
};
constexpr std::array kStateMakers{StateMaker{"PushButton", make_push_button_state}};

std::unique_ptr<ControlState> make_state(Object* control) {
    for (const ClassRecord* record = control->record; record != nullptr; record = record->parent) {
        for (const StateMaker& maker : kStateMakers) {
            if (view(record->name) == maker.class_name) return maker.make(control);
        }
    }
    return std::make_unique<ControlState>(control);
}

}  // namespace

void ControlState::attach(front::WindowFace&) {}
void ControlState::detach() {}
void ControlState::changed() {}
void ControlState::set_focus() {}

ControlState& control_state(Object* control) {
    if (control == nullptr) RaiseNilObjectException();
    if (control->native == nullptr) control->native = make_state(control).release();
    return *native<ControlState>(control);
}

void create_pane(Object* control) {
    const Ref<Object> pane = RuntimeNewObject(need_class("_Pane"));
    construct_pane(pane.object(), control);
    pane_field.set(control, pane.object());
}

}  // namespace core

using core::control_state;

void RuntimeControlInitializer(Object* control) { control_state(control); }
void RuntimeControlFinalizer(Object* control) { delete std::exchange(control->native, nullptr); }
void RectControlDefaultConstructor(Object* control) { control_state(control); }

void ControlClose(Object* control) {
    const Ref<Object> kept(control);
    core::closed_event(control);
    core::ControlState& state = control_state(control);
    state.detach();
    if (const Ref<Object> pane = core::pane_field.get(control)) core::close_pane(pane.object());
    core::set_window(control, nullptr);
    core::pane_field.set(control, nullptr);
    Object* const window = state.window();
    state.leave();
    if (window != nullptr) core::control_has_closed(window, control);
}

Ref<Object> controlWindowGetter(Object* control, std::int32_t) { return {control_state(control).window()}; }

void ControlTabPanelIndexSetter(Object* control, std::int32_t field, std::int32_t index) {
    intSetter(control, field, index);
}

namespace {

std::int32_t& position_of(Object* control, std::int32_t which) {
    front::Rect& bounds = control_state(control).bounds;
    switch (which) {
        case 0:
            return bounds.left;
        case 1:
            return bounds.top;
        case 2:
            return bounds.width;
        default:
            return bounds.height;
    }
}

template <class Value>
void set(Object* control, Value core::ControlState::*part, Value value) {
    core::ControlState& state = control_state(control);
    state.*part = std::move(value);
    state.changed();
}

using State = core::ControlState;

}  // namespace

std::int32_t ctlPosGetter(Object* control, std::int32_t which) { return position_of(control, which); }
void ctlPosSetter(Object* control, std::int32_t which, std::int32_t value) {
    position_of(control, which) = value;
    control_state(control).changed();
}

bool controlVisibleGetter(Object* control, std::int32_t) { return control_state(control).visible; }
void ControlVisibleSetter(Object* control, std::int32_t, bool visible) { set(control, &State::visible, visible); }
bool controlEnabledGetter(Object* control, std::int32_t) { return control_state(control).enabled; }
void controlEnabledSetter(Object* control, std::int32_t, bool enabled) { set(control, &State::enabled, enabled); }
bool controlAutoDeactivateGetter(Object* control, std::int32_t) { return control_state(control).auto_deactivate; }
void controlAutoDeactivateSetter(Object* control, std::int32_t, bool automatic) {
    set(control, &State::auto_deactivate, automatic);
}
bool controlLockLeftGetter(Object* control, std::int32_t) { return control_state(control).lock_left; }
void controlLockLeftSetter(Object* control, std::int32_t, bool locked) { set(control, &State::lock_left, locked); }
bool controlLockTopGetter(Object* control, std::int32_t) { return control_state(control).lock_top; }
void controlLockTopSetter(Object* control, std::int32_t, bool locked) { set(control, &State::lock_top, locked); }
bool controlLockRightGetter(Object* control, std::int32_t) { return control_state(control).lock_right; }
void controlLockRightSetter(Object* control, std::int32_t, bool locked) { set(control, &State::lock_right, locked); }
bool controlLockBottomGetter(Object* control, std::int32_t) { return control_state(control).lock_bottom; }
void controlLockBottomSetter(Object* control, std::int32_t, bool locked) { set(control, &State::lock_bottom, locked); }
std::int32_t ControlTabIndexGetter(Object* control, std::int32_t) { return control_state(control).tab_index; }
void ControlTabIndexSetter(Object* control, std::int32_t, std::int32_t index) {
    set(control, &State::tab_index, index);
}

void ControlInitialParentSetter(Object* control, std::int32_t, const String& parent) {
    set(control, &State::initial_parent, std::string(parent.view()));
}

void controlHelpTagSetter(Object* control, std::int32_t field, const String& help) {
    stringSetter(control, field, help);
    set(control, &State::help, std::string(help.view()));
}

void RuntimeSetFocus(Object* control) { control_state(control).set_focus(); }

}  // namespace tavrik
