#include "toolkit/core/menu_item.h"

#include "toolkit/core/application.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/window_list.h"

#include <tavrik/array.h>
#include <tavrik/menu_item.h>
#include <tavrik/runtime.h>

#include <utility>

namespace tavrik {
namespace core {
namespace {

constexpr std::string_view kSeparator = "-";

constinit ObjectField children_field{"MenuItem", "_mChildren"};

constinit Event<bool()> action{"MenuItem", "Action"};
constinit Operation<void()> self_enable{"MenuItem", "_SelfEnable", "%%"};
constinit Operation<void(Object*)> window_enables{"Window", "_EnableMenuItems", "%%A1o<MenuItem>"};
constinit Operation<bool(Object*)> window_handles{"Window", "_HandleMenuCommand", "%b%o<MenuItem>"};
constinit Operation<void(Object*)> application_enables{"Application", "_EnableMenuItems", "%%A1o<MenuItem>"};
constinit Operation<bool(Object*)> application_handles{"Application", "_HandleMenuCommand", "%b%o<MenuItem>"};

struct MenuItemState : NativeState {
    std::string name;
    std::int32_t index = 0;
    Ref<Object> tag;
    std::string text;
    std::string shortcut;
    bool enabled = true;
    bool checked = false;
    bool visible = true;
    bool auto_enable = false;
    Object* parent = nullptr;  // holds the item
};

MenuItemState& state_of(Object* item) {
    if (item == nullptr) RaiseNilObjectException();
    if (item->native == nullptr) item->native = new MenuItemState;
    return *native<MenuItemState>(item);
}

Ref<ArrayOf<Object>> children_of(const Object* item) { return static_ref<ArrayOf<Object>>(children_field.get(item)); }

Object* root_of(Object* item) {
    while (Object* const parent = state_of(item).parent) item = parent;
    return item;
}

// What shows the item learns of a change.
void changed(Object* item) {
    Object* const root = root_of(item);
    for (const Ref<Object>& window : open_windows()) {
        WindowState& state = window_state(window.object());
        if (state.menu_bar() == root) state.menus_changed();
    }
}

template <class Value>
void set(Object* item, Value MenuItemState::*part, Value value) {
    MenuItemState& state = state_of(item);
    if (state.*part == value) return;
    state.*part = std::move(value);
    changed(item);
}

template <class Use>
void for_each_child(const Object* item, Use use) {
    const auto children = children_of(item);
    if (!children) return;
    for (std::int32_t i = 0; i <= children->upper_bound(); ++i) use(children->at(i));
}

bool is_leaf(Object* item) {
    const auto children = children_of(item);
    return state_of(item).text != kSeparator && (!children || children->upper_bound() < 0);
}

void collect_leaves(Object* item, ArrayOf<Object>& leaves) {
    for_each_child(item, [&](const Ref<Object>& child) {
        if (is_leaf(child.object())) leaves.append(child);
        collect_leaves(child.object(), leaves);
    });
}

template <class Matches>
Ref<Object> find_below(const Object* item, Matches matches) {
    Ref<Object> found;
    for_each_child(item, [&](const Ref<Object>& child) {
        if (found) return;
        found = matches(child.object()) ? child : find_below(child.object(), matches);
    });
    return found;
}

bool has_name(Object* item, std::string_view name) { return state_of(item).name == name; }

front::MenuRole role_of(const Object* item) {
    if (RuntimeObjectIsa(item, RuntimeFindClass("QuitMenuItem"))) return front::MenuRole::kQuit;
    if (RuntimeObjectIsa(item, RuntimeFindClass("PrefsMenuItem"))) return front::MenuRole::kPreferences;
    if (RuntimeObjectIsa(item, RuntimeFindClass("AppleMenuItem"))) return front::MenuRole::kAbout;
    return front::MenuRole::kPlain;
}

front::MenuId id_of(const Object* item) { return reinterpret_cast<std::uintptr_t>(item); }

front::MenuDescription describe(Object* item) {
    const MenuItemState& state = state_of(item);
    front::MenuDescription description{.id = id_of(item),
                                       .role = role_of(item),
                                       .text = state.text,
                                       .shortcut = state.shortcut,
                                       .separator = state.text == kSeparator,
                                       .enabled = state.enabled,
                                       .checked = state.checked,
                                       .visible = state.visible,
                                       .help = {},
                                       .children = {}};
    for_each_child(item, [&](const Ref<Object>& child) { description.children.push_back(describe(child.object())); });
    return description;
}

void insert_child(Object* parent, std::int32_t position, Object* child) {
    if (child == nullptr) RaiseNilObjectException();
    for (Object* above = parent; above != nullptr; above = state_of(above).parent) {
        if (above == child) RuntimeRaise("IllegalCastException", "a menu item can't stand below itself");
    }
    const Ref<Object> kept(child);
    RuntimeCloseMenuItem(child);
    children_of(parent)->insert(position, Arg<Object>(child));
    state_of(child).parent = parent;
    changed(parent);
}

void remove_child(Object* parent, std::int32_t position) {
    const auto children = children_of(parent);
    const Ref<Object> child = children->at(position);
    children->remove(position);
    state_of(child.object()).parent = nullptr;
    changed(parent);
}

}  // namespace

std::vector<front::MenuDescription> describe_menus(Object* bar) {
    return bar == nullptr ? std::vector<front::MenuDescription>{} : describe(bar).children;
}

void enable_menu_items(Object* window) {
    Object* const bar = window_state(window).menu_bar();
    if (bar == nullptr) return;
    const auto leaves = ArrayOf<Object>::make();
    collect_leaves(bar, *leaves.get());

    for (std::int32_t i = 0; i <= leaves->upper_bound(); ++i) {
        const Ref<Object> item = leaves->at(i);
        MenuItemState& state = state_of(item.object());
        if (state.auto_enable) set(item.object(), &MenuItemState::enabled, action.handled(item.object()));
        self_enable(item.object());
    }
    window_enables(window, leaves.object());
    if (const Ref<Object> app = getAppObject()) application_enables(app.object(), leaves.object());
}

void choose_menu_item(Object* window, front::MenuId id) {
    const Ref<Object> item =
        find_below(window_state(window).menu_bar(), [id](const Object* candidate) { return id_of(candidate) == id; });
    if (!item || !state_of(item.object()).enabled) return;
    const Ref<Object> kept(window);
    const std::string name = state_of(item.object()).name;
    if (action(item.object())) return;
    if (window_state(window).menu_handlers.call(window, name)) return;
    if (window_handles(window, item.object())) return;
    const Ref<Object> app = getAppObject();
    if (!app || application_menu_handlers(app.object()).call(app.object(), name)) return;
    application_handles(app.object(), item.object());
}

}  // namespace core

using core::state_of;
using State = core::MenuItemState;

void MenuItemInitializer(Object* item) {
    state_of(item);
    core::children_field.set(item, ArrayOf<Object>::make().object());
}

// Children that outlive their parent have none.
void MenuItemFinalizer(Object* item) {
    core::for_each_child(item, [](const Ref<Object>& child) { state_of(child.object()).parent = nullptr; });
    delete std::exchange(item->native, nullptr);
}

void MenuBarInitializer(Object* bar) { state_of(bar); }
void RuntimeMenuItemDefaultConstructor(Object* item) { state_of(item); }

void MenuItemConstructor(Object* item, const String& text, Object* tag) {
    RuntimeMenuItemTextSetter(item, 0, text);
    RuntimeMenuItemTagSetter(item, 0, tag);
}

void RuntimeEnableMenu(Object* item) { RuntimeMenuItemEnabledSetter(item, 0, true); }

void RuntimeCloseMenuItem(Object* item) {
    if (Object* const parent = state_of(item).parent) RuntimeMenuItemRemoveItem(parent, item);
}

Ref<Object> RuntimeMenuItemItem(Object* item, std::int32_t position) { return core::children_of(item)->at(position); }
std::int32_t RuntimeMenuItemCount(Object* item) { return core::children_of(item)->upper_bound() + 1; }

Ref<Object> RuntimeMenuItemChild(Object* item, const String& name) {
    Ref<Object> found;
    core::for_each_child(item, [&](const Ref<Object>& child) {
        if (!found && core::has_name(child.object(), name.view())) found = child;
    });
    return found;
}

void RuntimeMenuItemAppend(Object* item, Object* child) {
    const Ref<Object> kept(child);
    if (child != nullptr) RuntimeCloseMenuItem(child);
    core::insert_child(item, RuntimeMenuItemCount(item), child);
}

void RuntimeMenuItemInsert(Object* item, std::int32_t position, Object* child) {
    core::insert_child(item, position, child);
}

void RuntimeMenuItemRemoveIndex(Object* item, std::int32_t position) { core::remove_child(item, position); }

void RuntimeMenuItemRemoveItem(Object* item, Object* child) {
    const std::int32_t position = core::children_of(item)->index_of(Arg<Object>(child));
    if (position >= 0) core::remove_child(item, position);
}

void RuntimeMenuItemRemoveByName(Object* item, const String& name) {
    if (const Ref<Object> child = RuntimeMenuItemChild(item, name)) RuntimeMenuItemRemoveItem(item, child.object());
}

Ref<Object> RuntimeMenuItemLookup(Object* item, const String& name) {
    return core::find_below(item, [&](Object* candidate) { return core::has_name(candidate, name.view()); });
}

Ref<Object> RuntimeMenuItemLookupArray(Object* item, const String& name, std::int32_t index) {
    return core::find_below(item, [&](Object* candidate) {
        return core::has_name(candidate, name.view()) && state_of(candidate).index == index;
    });
}

String RuntimeMenuItemNameGetter(Object* item, std::int32_t) { return String(std::string_view(state_of(item).name)); }
void RuntimeMenuItemNameSetter(Object* item, std::int32_t, const String& name) {
    core::set(item, &State::name, std::string(name.view()));
}
std::int32_t RuntimeMenuItemIndexGetter(Object* item, std::int32_t) { return state_of(item).index; }
void RuntimeMenuItemIndexSetter(Object* item, std::int32_t, std::int32_t index) {
    core::set(item, &State::index, index);
}
Ref<Object> RuntimeMenuItemTagGetter(Object* item, std::int32_t) { return state_of(item).tag; }
void RuntimeMenuItemTagSetter(Object* item, std::int32_t, Object* tag) { state_of(item).tag = Ref<Object>(tag); }
String RuntimeMenuItemTextGetter(Object* item, std::int32_t) { return String(std::string_view(state_of(item).text)); }
void RuntimeMenuItemTextSetter(Object* item, std::int32_t, const String& text) {
    core::set(item, &State::text, std::string(text.view()));
}
bool RuntimeMenuItemCheckedGetter(Object* item, std::int32_t) { return state_of(item).checked; }
void RuntimeMenuItemCheckedSetter(Object* item, std::int32_t, bool checked) {
    core::set(item, &State::checked, checked);
}
bool RuntimeMenuItemEnabledGetter(Object* item, std::int32_t) { return state_of(item).enabled; }
void RuntimeMenuItemEnabledSetter(Object* item, std::int32_t, bool enabled) {
    core::set(item, &State::enabled, enabled);
}
bool RuntimeMenuItemVisibleGetter(Object* item, std::int32_t) { return state_of(item).visible; }
void RuntimeMenuItemVisibleSetter(Object* item, std::int32_t, bool visible) {
    core::set(item, &State::visible, visible);
}
String RuntimeMenuItemCommandKeyGetter(Object* item, std::int32_t) {
    return String(std::string_view(state_of(item).shortcut));
}
void RuntimeMenuItemCommandKeySetter(Object* item, std::int32_t, const String& keys) {
    core::set(item, &State::shortcut, std::string(keys.view()));
}
bool RuntimeMenuItemAutoEnableGetter(Object* item, std::int32_t) { return state_of(item).auto_enable; }
void RuntimeMenuItemAutoEnableSetter(Object* item, std::int32_t, bool automatic) {
    core::set(item, &State::auto_enable, automatic);
}

bool QuitMenuAction(Object* item) {
    // The class's own handler, which leads here, stands in the first entry of the name.
    const ClassRecord& record = *item->record;
    for (std::int32_t i = record.event_count; i-- > 1;) {
        const EventRecord& entry = item->events[i];
        if (view(entry.name) != "Action" || entry.handler == nullptr) continue;
        if (reinterpret_cast<bool (*)(Object*)>(entry.handler)(item)) return true;
    }
    core::quit();
    return true;
}

}  // namespace tavrik
