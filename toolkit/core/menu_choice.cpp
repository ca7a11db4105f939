// What items of menus do: when they can be chosen, and the road of a chosen one.
#include "toolkit/core/application.h"
#include "toolkit/core/control.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/menu_tree.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/streams.h"
#include "toolkit/core/window.h"
#include "toolkit/core/window_list.h"

#include <tavrik/menu_item.h>
#include <tavrik/runtime.h>

#include <algorithm>

namespace tavrik {
namespace core {
namespace {

constinit Event<bool()> action{"MenuItem", "Action"};
constinit Operation<void()> enable{"MenuItem", "Enable", "%%"};
constinit Operation<void()> self_enable{"MenuItem", "_SelfEnable", "%%"};
constinit ObjectField focus_field{"Window", "_mFocusControl"};
constinit ObjectField pane_field{"Control", "_mImp"};
constinit Operation<void(Object*)> pane_enables{"_Pane", "EnableMenuItems", "%%A1o<MenuItem>"};
constinit Operation<bool(Object*)> pane_handles{"_Pane", "HandleMenuCommand", "%b%o<MenuItem>"};
constinit Operation<void(Object*)> window_enables{"Window", "_EnableMenuItems", "%%A1o<MenuItem>"};
constinit Operation<bool(Object*)> window_handles{"Window", "_HandleMenuCommand", "%b%o<MenuItem>"};
constinit Operation<void(Object*)> application_enables{"Application", "_EnableMenuItems", "%%A1o<MenuItem>"};
constinit Operation<bool(Object*)> application_handles{"Application", "_HandleMenuCommand", "%b%o<MenuItem>"};

bool is(const Object* object, std::string_view class_name) {
    return RuntimeObjectIsa(object, RuntimeFindClass(class_name));
}

// The handler of the last event of that name, among those from an index on, that has one.
Function last_handler(const Object* object, std::string_view event, std::int32_t from) {
    for (std::int32_t i = object->record->event_count; i-- > from;) {
        const EventRecord& entry = object->events[i];
        if (view(entry.name) == event && entry.handler != nullptr) return entry.handler;
    }
    return nullptr;
}

// The "Action" that is free for subclasses and instances: a class that handles the event itself has it first.
Function free_action(const Object* item) { return last_handler(item, "Action", 1); }

bool raise_free_action(Object* item) {
    const Function handler = free_action(item);
    return handler != nullptr && reinterpret_cast<bool (*)(Object*)>(handler)(item);
}

// Preferences do nothing by themselves.
bool acts_itself(Object* item) {
    Object* const original = original_of(item);
    return is(original, "PrefsMenuItem") ? free_action(original) != nullptr : action.handled(original);
}

bool is_leaf(Object* item) {
    const auto entries = entries_of(item);
    return !is_separator(item) && (!entries || entries->upper_bound() < 0);
}

enum class Place { kRoot, kOfBar, kInMenu };

// From the top, so that a menu may be filled by its own "EnableMenu" event.
void self_enable_all(Object* item, Place place) {
    if (is_separator(item)) return;
    if (place == Place::kInMenu && is_leaf(item) && values_of(item).auto_enable) {
        set_value(item, &MenuItemValues::enabled, acts_itself(item));
    }
    self_enable(original_of(item));

    const Place below = place == Place::kRoot && is(item, "MenuBar") ? Place::kOfBar : Place::kInMenu;
    for (std::int32_t i = 0; i <= entries_of(item)->upper_bound(); ++i) {
        self_enable_all(entries_of(item)->at(i).object(), below);
    }
}

void collect_leaves(const Object* item, ArrayOf<Object>& leaves) {
    for_each_entry(item, [&](const Ref<Object>& entry) {
        if (is_leaf(entry.object())) leaves.append(entry);
        collect_leaves(entry.object(), leaves);
    });
}

Ref<Object> focus_of(Object* window) { return window == nullptr ? nullptr : focus_field.get(window); }

void focus_enables(Object* control, ArrayOf<Object>& items) {
    if (const Function handler = last_handler(control, "EnableMenuItems", 0)) {
        reinterpret_cast<void (*)(Object*)>(handler)(control);
    }
    if (const Ref<Object> pane = pane_field.get(control)) pane_enables(pane.object(), &items);
    for (std::int32_t i = 0; i <= items.upper_bound(); ++i) {
        const Ref<Object> item = items.at(i);
        if (control_state(control).menu_handlers.has(values_of(item.object()).name)) enable(item.object());
    }
}

// What the item stands in may be disabled with all that is in it.
Ref<Object> find_enabled(const Object* menu, front::MenuId id) {
    Ref<Object> found;
    for_each_entry(menu, [&](const Ref<Object>& entry) {
        if (found || !values_of(entry.object()).enabled) return;
        found = id_of(entry.object()) == id ? entry : find_enabled(entry.object(), id);
    });
    return found;
}

void enable_items(Object* root, Object* window) {
    const Ref<Object> kept_root(root);
    const Ref<Object> kept_window(window);
    self_enable_all(root, Place::kRoot);

    const auto leaves = ArrayOf<Object>::make();
    collect_leaves(root, *leaves.get());
    if (const Ref<Object> focus = focus_of(window)) focus_enables(focus.object(), *leaves.get());
    if (window != nullptr) window_enables(window, leaves.object());
    if (const Ref<Object> app = getAppObject()) application_enables(app.object(), leaves.object());
}

void act(Object* item, Object* window) {
    const Ref<Object> kept(window);
    const Ref<Object> original(original_of(item));
    const Ref<Object> app = getAppObject();
    const std::string name = values_of(item).name;

    if (action(original.object())) return;
    const Ref<Object> focus = focus_of(window);
    if (focus && control_state(focus.object()).menu_handlers.call(focus.object(), name)) return;
    // A container answers here, for what has the focus inside of it.
    const Ref<Object> pane = focus ? pane_field.get(focus.object()) : nullptr;
    if (pane && pane_handles(pane.object(), item)) return;
    if (window != nullptr && window_state(window).menu_handlers.call(window, name)) return;
    if (app && application_menu_handlers(app.object()).call(app.object(), name)) return;
    if (window != nullptr && window_handles(window, item)) return;
    if (app) application_handles(app.object(), item);
}

Ref<Object> choose(Object* menu, front::MenuId id, Object* window) {
    Ref<Object> item = find_enabled(menu, id);
    if (item) act(item.object(), window);
    return item;
}

bool shows_anything(const front::MenuDescription& menu) {
    return std::ranges::any_of(menu.children, [](const auto& entry) { return entry.visible && !entry.separator; });
}

}  // namespace

void enable_menu_items(Object* window) {
    if (Object* const bar = menu_bar_of(window)) enable_items(bar, window);
}

void choose_menu_item(Object* window, front::MenuId id) {
    if (Object* const bar = menu_bar_of(window)) choose(bar, id, window);
}

Ref<Object> pop_up_menu(Object* item, std::optional<front::Point> at, Object* window) {
    if (item == nullptr) RaiseNilObjectException();
    const Ref<Object> kept(item);
    const Ref<Object> kept_window(window);
    enable_items(item, window);
    const front::MenuDescription menu = describe(item);
    if (!shows_anything(menu)) return nullptr;

    flush_all_streams();
    const std::optional<front::MenuId> chosen = on_main_stack([&] {
        return front().pop_up(menu, at, window == nullptr ? nullptr : window_state(window).outermost().face());
    });
    if (chosen) return choose(item, *chosen, window);
    EventScope::note_cancel();
    return nullptr;
}

}  // namespace core

Ref<Object> RuntimeMenuItemPopUpByCursor(Object* item) {
    return core::pop_up_menu(item, std::nullopt, core::frontmost_window());
}

Ref<Object> RuntimeMenuItemPopUp(Object* item, std::int32_t left, std::int32_t top) {
    return core::pop_up_menu(item, front::Point{.left = left, .top = top}, core::frontmost_window());
}

bool QuitMenuAction(Object* item) {
    core::need_main_thread();
    if (!core::raise_free_action(item)) core::quit();
    return true;
}

bool PrefsMenuAction(Object* item) { return core::raise_free_action(item); }

}  // namespace tavrik
