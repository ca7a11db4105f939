#include "toolkit/core/menu_tree.h"

#include "toolkit/core/main_thread.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/window.h"
#include "toolkit/core/window_list.h"

#include <tavrik/class_record.h>
#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>

namespace tavrik::core {
namespace {

constexpr std::string_view kSeparator = "-";

constinit ObjectField children_field{"MenuItem", "_mChildren"};

// Every place that the item or one of its clones has: the parent, or nullptr and the item itself where it has none.
template <class Use>
void for_each_place(Object* item, Use use) {
    Object* const original = original_of(item);
    const MenuItemState& state = menu_item_state(original);
    use(state.parent, original);
    for (Object* const clone : state.clones) use(menu_item_state(clone).parent, clone);
}

template <class Use>
void for_each_root(Object* item, Use use) {
    for_each_place(item, [&](Object* parent, Object* self) {
        if (parent != nullptr) return for_each_root(parent, use);
        use(self);
    });
}

bool is_at_or_above(const Object* original, Object* place) {
    if (original_of(place) == original) return true;
    bool found = false;
    for_each_place(place, [&](Object* parent, Object*) {
        found = found || (parent != nullptr && is_at_or_above(original, parent));
    });
    return found;
}

void need_place_outside(Object* item, Object* parent) {
    if (item == nullptr) RaiseNilObjectException();
    if (!is_at_or_above(original_of(item), parent)) return;
    RuntimeRaise("IllegalCastException", "a menu item can't stand below itself");
}

front::MenuRole role_of(const Object* item) {
    if (RuntimeObjectIsa(item, RuntimeFindClass("QuitMenuItem"))) return front::MenuRole::kQuit;
    if (RuntimeObjectIsa(item, RuntimeFindClass("PrefsMenuItem"))) return front::MenuRole::kPreferences;
    if (RuntimeObjectIsa(item, RuntimeFindClass("AppleMenuItem"))) return front::MenuRole::kAbout;
    return front::MenuRole::kPlain;
}

}  // namespace

MenuItemState& menu_item_state(Object* item, const char* call) {
    need_main_thread(call);
    if (item == nullptr) RaiseNilObjectException();
    if (item->native == nullptr) item->native = new MenuItemState;
    return *native<MenuItemState>(item);
}

Object* original_of(Object* item, const char* call) {
    Object* const original = menu_item_state(item, call).original.object();
    return original == nullptr ? item : original;
}

void menu_item_changed(Object* item) {
    for_each_root(item, [](const Object* root) {
        for (const Ref<Object>& window : open_windows()) {
            if (menu_bar_of(window.object()) == root) window_state(window.object()).menus_changed();
        }
    });
}

bool is_separator(Object* item) { return values_of(item).text == kSeparator; }

Ref<ArrayOf<Object>> entries_of(const Object* item) { return static_ref<ArrayOf<Object>>(children_field.get(item)); }
void set_entries(Object* item, Object* array) { children_field.set(item, array); }

Ref<Object> find_named(const Object* item, std::string_view name) {
    return find_below(item, [name](Object* candidate) { return values_of(candidate).name == name; });
}

void insert_entry(Object* parent, std::int32_t position, Object* child) {
    need_place_outside(child, parent);
    const bool moves_within = menu_item_state(child).parent == original_of(parent);
    const std::int32_t last = entries_of(parent)->upper_bound() + (moves_within ? 0 : 1);
    if (position < 0 || position > last) {
        RuntimeRaise("OutOfBoundsException", "a menu has no place " + std::to_string(position) + " for another item");
    }
    const Ref<Object> kept(child);
    leave_parent(child);
    entries_of(parent)->insert(position, kept);
    menu_item_state(child).parent = original_of(parent);
    menu_item_changed(parent);
}

void append_entry(Object* parent, Object* child) {
    need_place_outside(child, parent);
    const Ref<Object> kept(child);
    leave_parent(child);
    insert_entry(parent, entries_of(parent)->upper_bound() + 1, child);
}

void remove_entry(Object* parent, std::int32_t position) {
    const auto entries = entries_of(parent);
    const Ref<Object> child = entries->at(position);
    entries->remove(position);
    menu_item_state(child.object()).parent = nullptr;
    menu_item_changed(parent);
}

void leave_parent(Object* item) {
    Object* const parent = menu_item_state(item).parent;
    if (parent == nullptr) return;
    const std::int32_t position = entries_of(parent)->index_of(Arg<Object>(item));
    if (position >= 0) remove_entry(parent, position);
}

void replace_entry(Object* leaving, Object* coming) {
    Object* const parent = menu_item_state(leaving).parent;
    need_place_outside(coming, parent);
    const Ref<Object> kept(coming);
    leave_parent(coming);
    const std::int32_t position = entries_of(parent)->index_of(Arg<Object>(leaving));
    remove_entry(parent, position);
    insert_entry(parent, position, coming);
}

Ref<Object> clone_item(Object* item, Object* parent) {
    need_place_outside(item, parent);
    Object* const original = original_of(item);
    Ref<Object> clone = RuntimeNewObject(original->record);
    menu_item_state(clone.object()).original = Ref<Object>(original);
    menu_item_state(original).clones.push_back(clone.object());
    set_entries(clone.object(), entries_of(original).object());
    return clone;
}

// Entries that outlive their menu stand nowhere.
void dissolve(Object* item) {
    if (Object* const original = original_of(item); original != item) {
        std::erase(menu_item_state(original).clones, item);
    } else {
        for_each_entry(item, [](const Ref<Object>& entry) { menu_item_state(entry.object()).parent = nullptr; });
    }
    delete std::exchange(item->native, nullptr);
}

front::MenuId id_of(const Object* item) { return reinterpret_cast<std::uintptr_t>(item); }

front::MenuDescription describe(Object* item) {
    const MenuItemValues& values = values_of(item);
    const bool explains_why_not = !values.enabled && !values.disabled_help.empty();
    front::MenuDescription description{.id = id_of(item),
                                       .role = role_of(item),
                                       .text = values.text,
                                       .shortcut = values.shortcut,
                                       .separator = is_separator(item),
                                       .enabled = values.enabled,
                                       .checked = values.checked,
                                       .visible = values.visible,
                                       .bold = values.bold,
                                       .italic = values.italic,
                                       .underline = values.underline,
                                       .help = explains_why_not ? values.disabled_help : values.help,
                                       .children = {}};
    for_each_entry(item, [&](const Ref<Object>& entry) { description.children.push_back(describe(entry.object())); });
    return description;
}

}  // namespace tavrik::core
