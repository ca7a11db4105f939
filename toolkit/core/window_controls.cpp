// The controls that a window knows.
#include "toolkit/core/embedded_window_control.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/window.h"

#include <tavrik/control.h>
#include <tavrik/dictionary.h>
#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/variant.h>
#include <tavrik/window.h>

namespace tavrik {
namespace core {
namespace {

constinit ObjectField focus_field{"Window", "_mFocusControl"};

constinit Operation<void(Object*)> set_window{"Control", "_SetWindow", "%%o<Window>"};
constinit Operation<void()> call_open_event{"Control", "_CallOpenEvent", "%%"};
constinit Operation<void(Object*)> remove_control{"Window", "_RemoveControl", "%%o<Control>"};

// The older elements of a control array are named with their index. The newest has the plain name, since the code that
// makes it looks for that.
void make_room(Object* names, const String& name) {
    const Ref<Object> key = StringToVariant(name);
    const Ref<Object> older = DictionaryLookup(names, key.object(), nullptr);
    if (!older) return;
    const std::string element =
        std::string(name.view()) + '(' + std::to_string(int_property(older.object(), "Index")) + ')';
    std::string free = element;
    for (int n = 2; dictionaryHasKey(names, StringToVariant(String(free)).object()); ++n) {
        free = element + ' ' + std::to_string(n);
    }
    dictionaryValueSetter(names, StringToVariant(String(free)).object(), older.object());
}

bool is_element(Object* control, const String& name, std::int32_t index) {
    return int_property(control, "Index") == index && text_property(control, "Name").view() == name.view();
}

}  // namespace

void control_has_closed(Object* window, Object* control) {
    const WindowState& state = window_state(window);
    // A closing window lets go of all of them by itself.
    if (state.closing == WindowState::Closing::kNo && control_names(window)) remove_control(window, control);
}

}  // namespace core

Ref<Object> WindowAllocateObject(Object* window, ClassRecord* record) {
    if (window == nullptr) RaiseNilObjectException();
    return RuntimeNewObject(record);
}

void WindowAddControl(Object* window, const String& name, Object* control) {
    if (control == nullptr) RaiseNilObjectException();
    core::WindowState& state = core::window_state(window);
    const Ref<Object> names = core::control_names(window);
    if (!names) RaiseNilObjectException();
    core::make_room(names.object(), name);
    dictionaryValueSetter(names.object(), StringToVariant(name).object(), control);
    core::control_list(window)->append(Arg<Object>(control));
    core::ControlState& added = core::control_state(control);
    added.enter(window);
    if (core::text_property(control, "Name").view().empty()) core::set_text_property(control, "Name", name);
    core::set_window(control, window);
    if (state.opened) core::call_open_event(control);
    state.attach(added);
}

Ref<Object> RuntimeControlReference(Object* window, const String& name) {
    if (window == nullptr) RaiseNilObjectException();
    const Ref<Object> names = core::control_names(window);
    return names ? DictionaryLookup(names.object(), StringToVariant(name).object(), nullptr) : nullptr;
}

Ref<Object> RuntimeControlArrayItemReference(Object* window, const String& name, std::int32_t index) {
    if (window == nullptr) RaiseNilObjectException();
    const auto controls = core::control_list(window);
    for (std::int32_t i = 0; i <= controls->upper_bound(); ++i) {
        const Ref<Object> control = controls->at(i);
        if (core::is_element(control.object(), name, index)) return control;
    }
    return nullptr;
}

Ref<Object> windowControl(Object* window, std::int32_t position) { return core::control_list(window)->at(position); }

std::int32_t windowControlCountGetter(Object* window, std::int32_t) {
    return core::control_list(window)->upper_bound() + 1;
}

void formSetFocus(Object* window) {
    core::HostState* const host = core::window_state(window).host();
    if (host != nullptr && core::bool_property(host->self(), "AcceptFocus")) return host->set_focus();
    core::WindowState& state = core::window_state(window).outermost();
    if (state.face() != nullptr) core::on_main_stack([&] { state.face()->clear_focus(); });
}

Ref<Object> WindowFocusGetter(Object* window, std::int32_t) {
    if (window == nullptr) RaiseNilObjectException();
    return core::focus_field.get(window);
}

void WindowFocusSetter(Object* window, std::int32_t, Object* control) {
    control == nullptr ? formSetFocus(window) : RuntimeSetFocus(control);
}

}  // namespace tavrik
