#include "toolkit/core/pane.h"

#include "toolkit/core/class_state.h"
#include "toolkit/core/control.h"
#include "toolkit/core/reflection.h"

#include <tavrik/array.h>
#include <tavrik/class_record.h>
#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/wrapping.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tavrik::core {
namespace {

constinit ObjectField control_pane{"Control", "_mImp"};
constinit ObjectField content_pane{"Window", "_mContentPane"};
constinit ObjectField pane_native{"_Pane", "mImp"};
constinit ObjectField pane_control{"_Pane", "mControl"};
constinit ObjectField pane_parent{"_Pane", "mParent"};
constinit ObjectField pane_children{"_Pane", "mChildren"};
constinit PlainField<std::int32_t> pane_left{"_Pane", "mLeft"};
constinit PlainField<std::int32_t> pane_top{"_Pane", "mTop"};
constinit PlainField<std::int32_t> pane_width{"_Pane", "mWidth"};
constinit PlainField<std::int32_t> pane_height{"_Pane", "mHeight"};
constinit PlainField<bool> pane_visible{"_Pane", "mVisible"};
constinit PlainField<bool> pane_enabled{"_Pane", "mEnabled"};
constinit PlainField<bool> pane_on_page{"_Pane", "mTabPanelVisible"};
constinit PlainField<std::int32_t> pane_page{"_Pane", "mPanelIndex"};
constinit ObjectField pane_cursor{"_Pane", "mCursor"};
constinit Operation<void(Object*)> construct{"_Pane", "Constructor", "%%o<Control>"};
constinit Operation<void()> close_pane{"_Pane", "Close", "%%"};
constinit Property<Ref<Object>> pane_window{"_Pane", "Window"};
constinit Property<Ref<Object>> control_cursor{"RectControl", "MouseCursor"};

// What a native side knows: its pane holds it.
struct PaneImp : Object {
    Object* pane;
};

Object*& pane_behind(Object* imp) { return static_cast<PaneImp*>(imp)->pane; }

// nullptr for the root of a window.
ControlState* control_of(const Object* pane) {
    Object* const control = pane_control.peek(pane);
    return control == nullptr ? nullptr : native<ControlState>(control);
}

// nullptr once the pane is gone, too.
ControlState* control_behind(Object* imp) {
    Object* const pane = pane_behind(imp);
    return pane == nullptr ? nullptr : control_of(pane);
}

Ref<ArrayOf<Object>> children_of(const Object* pane) { return static_ref<ArrayOf<Object>>(pane_children.get(pane)); }

void place(Object* pane, const front::Rect& rect) {
    pane_left.set(pane, rect.left);
    pane_top.set(pane, rect.top);
    pane_width.set(pane, rect.width);
    pane_height.set(pane, rect.height);
}

void leave_parent(Object* pane) {
    const Ref<Object> parent = pane_parent.get(pane);
    if (!parent) return;
    const auto siblings = children_of(parent.object());
    const std::int32_t position = siblings->index_of(Arg<Object>(pane));
    if (position >= 0) siblings->remove(position);
    pane_parent.set(pane, nullptr);
}

void join(Object* pane, Object* parent) {
    if (pane_parent.peek(pane) == parent) return;
    const Ref<Object> kept(pane);
    leave_parent(pane);
    if (parent == nullptr) return;
    pane_parent.set(pane, parent);
    children_of(parent)->append(Arg<Object>(pane));
}

Ref<Object> parent_pane_of(const ControlState& control) {
    if (control.window() == nullptr) return nullptr;
    return control.parent() != nullptr ? pane_of(control.parent()->self()) : content_pane_of(control.window());
}

// ---- The positions of the native side's table.

void resize(Object* imp) {
    if (ControlState* const control = control_behind(imp)) control->follow_pane();
}

void add_to_parent(Object* imp) {
    ControlState* const control = control_behind(imp);
    if (control == nullptr) return;
    Object* const pane = pane_behind(imp);
    join(pane, parent_pane_of(*control).object());
    const bool visible = pane_visible.get(pane);
    if (std::exchange(control->visible, visible) != visible) control->changed();
}

std::int32_t handle(Object* imp) {
    const ControlState* const control = control_behind(imp);
    return control == nullptr ? 0 : static_cast<std::int32_t>(control->handle());
}

void set_focus(Object* imp) {
    if (ControlState* const control = control_behind(imp)) control->set_focus();
}

void enable_or_disable(Object* imp) {
    ControlState* const control = control_behind(imp);
    if (control == nullptr) return;
    const bool enabled = pane_enabled.get(pane_behind(imp));
    if (std::exchange(control->enabled, enabled) != enabled) control->changed();
}

Ref<Object> graphics(Object*) { return nullptr; }

void cursor_changed(Object* imp) {
    ControlState* const control = control_behind(imp);
    if (control != nullptr) control_cursor.set(control->self(), pane_cursor.peek(pane_behind(imp)));
}

void close(Object* imp) {
    Object* const pane = pane_behind(imp);
    if (pane != nullptr) leave_parent(pane);
}

void refresh(Object* imp, bool) {
    if (ControlState* const control = control_behind(imp)) control->refresh(nullptr);
}

void refresh_rect(Object* imp, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height, bool) {
    const front::Rect part{left, top, width, height};
    if (ControlState* const control = control_behind(imp)) control->refresh(&part);
}

void invalidate(Object* imp) { refresh(imp, false); }

void invalidate_rect(Object* imp, std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    refresh_rect(imp, left, top, width, height, false);
}

void nothing(Object*) {}

template <class F>
Function entry(F* function) {
    return reinterpret_cast<Function>(function);
}

ClassRecord* imp_class() {
    static ClassRecord* const record = [] {
        const std::array positions{
            entry(resize),   entry(add_to_parent), entry(nothing),        entry(nothing),
            entry(handle),   entry(nothing),       entry(set_focus),      entry(enable_or_disable),
            entry(graphics), entry(nothing),       entry(cursor_changed), entry(close),
            entry(refresh),  entry(refresh_rect),  entry(invalidate),     entry(invalidate_rect)};
        ClassRecord* const made = new_hidden_class(nullptr, "_PaneImp", sizeof(PaneImp));
        made->vtable_size = static_cast<std::int32_t>(positions.size());
        made->vtable = RuntimeNewVtable(made->vtable_size);
        std::ranges::copy(positions, made->vtable);
        return made;
    }();
    return record;
}

// ---- The toolkit's own kind of pane.

void create_imp(Object* pane) {
    const Ref<Object> imp = RuntimeNewObject(imp_class());
    pane_behind(imp.object()) = pane;
    pane_native.set(pane, imp.object());
}

void enable_menu_items(Object* pane, Object* items) {
    if (ControlState* const control = control_of(pane)) control->enable_menu_items(items);
}

bool handle_menu_command(Object* pane, Object* item) {
    ControlState* const control = control_of(pane);
    return control != nullptr && control->handle_menu_command(item);
}

// The native side may be held by others, and outlive its pane.
void part_from_imp(Object* pane) {
    if (Object* const imp = pane_native.peek(pane)) pane_behind(imp) = nullptr;
}

// What nobody sees takes the pointer, wherever it is, to be outside.
void move_outside(Object* pane, std::int32_t, std::int32_t) {
    static const std::int32_t slot = find_slot("_Pane", "HandleMouseMove", "%%i4i4");
    using Move = void (*)(Object*, std::int32_t, std::int32_t);
    reinterpret_cast<Move>(pane->record->vtable[slot])(pane, kOutsideOfPanes, kOutsideOfPanes);
}

// The operations of a pane of the toolkit's own class whose control is hidden.
const Function* hidden_vtable(const ClassRecord* record) {
    static Function* const vtable = [record] {
        Function* const made = RuntimeNewVtable(record->vtable_size);
        std::copy_n(record->vtable, record->vtable_size, made);
        made[find_slot("_Pane", "HandleMouseMove", "%%i4i4")] = entry(move_outside);
        return made;
    }();
    return vtable;
}

ClassRecord* native_pane_class() {
    static ClassRecord* const record = [] {
        ClassRecord* const parent = need_class("_Pane");
        ClassRecord* const made = new_hidden_class(parent, "_NativePane", parent->instance_size);
        made->vtable = RuntimeNewVtable(made->vtable_size);
        std::copy_n(parent->vtable, made->vtable_size, made->vtable);
        made->vtable[find_slot("_Pane", "CreateImp", "%%")] = entry(create_imp);
        made->vtable[find_slot("_Pane", "EnableMenuItems", "%%A1o<MenuItem>")] = entry(enable_menu_items);
        made->vtable[find_slot("_Pane", "HandleMenuCommand", "%b%o<MenuItem>")] = entry(handle_menu_command);
        made->exit = part_from_imp;
        return made;
    }();
    return record;
}

}  // namespace

void create_pane(Object* control) {
    const Ref<Object> pane = RuntimeNewObject(native_pane_class());
    const Ref<Object> old = control_pane.get(control);
    construct(pane.object(), control);
    control_pane.set(control, pane.object());
    if (old) leave_parent(old.object());
    mirror(control_state(control));
}

void create_content_pane(Object* window) {
    const Ref<Object> pane = RuntimeNewObject(native_pane_class());
    construct(pane.object(), nullptr);
    pane_visible.set(pane.object(), true);
    pane_enabled.set(pane.object(), true);
    content_pane.set(window, pane.object());
    pane_window.set(pane.object(), window);
}

void close_content_pane(Object* window) {
    const Ref<Object> pane = content_pane.get(window);
    if (!pane) return;
    close_pane(pane.object());
    pane_window.set<Object*>(pane.object(), nullptr);
    content_pane.set(window, nullptr);
}

Ref<Object> pane_of(const Object* control) { return control_pane.get(control); }
Ref<Object> content_pane_of(const Object* window) { return content_pane.get(window); }

void mirror(const ControlState& control) {
    Object* const pane = control_pane.peek(control.self());
    if (pane == nullptr) return;
    const front::Rect corner = control.parent() == nullptr ? front::Rect() : control.parent()->bounds();
    const front::Rect& bounds = control.bounds();
    place(pane, {wrapping_difference(bounds.left, corner.left), wrapping_difference(bounds.top, corner.top),
                 bounds.width, bounds.height});
    pane_visible.set(pane, control.visible);
    pane_enabled.set(pane, control.enabled);
    pane_page.set(pane, control.panel_index());
    const bool on_page = control.parent() == nullptr || control.parent()->shows(control);
    pane_on_page.set(pane, on_page);
    if (pane->record == native_pane_class())
        pane->vtable = control.visible && on_page ? pane->record->vtable : hidden_vtable(pane->record);
    const Ref<Object> parent = parent_pane_of(control);
    if (parent) join(pane, parent.object());
}

front::Rect bounds_of_pane(Object* pane) {
    front::Rect bounds{0, 0, pane_width.get(pane), pane_height.get(pane)};
    for (Object* each = pane; each != nullptr; each = pane_parent.peek(each)) {
        bounds.left = wrapping_sum(bounds.left, pane_left.get(each));
        bounds.top = wrapping_sum(bounds.top, pane_top.get(each));
    }
    return bounds;
}

void set_content_size(Object* window, int width, int height) {
    if (Object* const pane = content_pane.peek(window)) place(pane, {0, 0, width, height});
}

}  // namespace tavrik::core
