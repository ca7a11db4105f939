#pragma once

#include "toolkit/core/reflection.h"
#include "toolkit/front/descriptions.h"

#include <tavrik/array.h>
#include <tavrik/object.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The tree of menu items: what an item is, and how items stand in each other. A clone stands in a place of its own and
// is its original in all else: it has the original's values, and its entries are the original's.
namespace tavrik::core {

struct MenuItemValues {
    std::string name;
    std::int32_t index = 0;
    Ref<Object> tag;
    std::string text;
    std::string shortcut;
    std::string help;
    std::string disabled_help;
    Ref<Object> icon;
    bool enabled = true;
    bool checked = false;
    bool visible = true;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool auto_enable = false;
};

struct MenuItemState : NativeState {
    MenuItemValues values;
    Object* parent = nullptr;     // holds the item
    Ref<Object> original;         // of a clone
    std::vector<Object*> clones;  // of an original; they hold it
};

MenuItemState& menu_item_state(Object* item, const char* call = __builtin_FUNCTION());
Object* original_of(Object* item, const char* call = __builtin_FUNCTION());
inline MenuItemValues& values_of(Object* item, const char* call = __builtin_FUNCTION()) {
    return menu_item_state(original_of(item, call), call).values;
}

// Has what shows the item learn of a change.
void menu_item_changed(Object* item);

template <class Value>
void set_value(Object* item, Value MenuItemValues::*part, Value value, const char* call = __builtin_FUNCTION()) {
    MenuItemValues& values = values_of(item, call);
    if (values.*part == value) return;
    values.*part = std::move(value);
    menu_item_changed(item);
}

bool is_separator(Object* item);
Ref<ArrayOf<Object>> entries_of(const Object* item);
void set_entries(Object* item, Object* array);

template <class Use>
void for_each_entry(const Object* item, Use use) {
    const auto entries = entries_of(item);
    for (std::int32_t i = 0; entries && i <= entries->upper_bound(); ++i) use(entries->at(i));
}

// The first item below, depth first, that matches; nil if none does.
template <class Matches>
Ref<Object> find_below(const Object* item, Matches matches) {
    Ref<Object> found;
    for_each_entry(item, [&](const Ref<Object>& entry) {
        if (found) return;
        found = matches(entry.object()) ? entry : find_below(entry.object(), matches);
    });
    return found;
}
Ref<Object> find_named(const Object* item, std::string_view name);

// Raises NilObjectException for nil, IllegalCastException for an item that the parent stands below, and
// OutOfBoundsException for a position outside; then nothing changes. Else the child leaves the place that it has.
void insert_entry(Object* parent, std::int32_t position, Object* child);
void append_entry(Object* parent, Object* child);
void remove_entry(Object* parent, std::int32_t position);
// Takes an item out of its parent, if it has one.
void leave_parent(Object* item);
// Puts an item in the place of another one, which leaves it. Raises as insert_entry().
void replace_entry(Object* leaving, Object* coming);
// A clone of the item, without a place yet. Raises IllegalCastException if the place it is for stands below the item.
Ref<Object> clone_item(Object* item, Object* parent);
// What ends with the item.
void dissolve(Object* item);

front::MenuId id_of(const Object* item);
front::MenuDescription describe(Object* item);

}  // namespace tavrik::core
