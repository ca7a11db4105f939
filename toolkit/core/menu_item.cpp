// The functions of the contract for menu items.
#include "toolkit/core/menu_item.h"

#include "toolkit/core/menu_tree.h"

#include <tavrik/array.h>
#include <tavrik/menu_item.h>

#include <algorithm>

namespace tavrik {

using core::values_of;
using Values = core::MenuItemValues;

void MenuItemInitializer(Object* item) {
    core::menu_item_state(item);
    core::set_entries(item, ArrayOf<Object>::make().object());
}

void MenuItemFinalizer(Object* item) { core::dissolve(item); }

void MenuBarInitializer(Object* bar) { core::menu_item_state(bar); }
void RuntimeMenuItemDefaultConstructor(Object* item) { core::menu_item_state(item); }

void MenuItemConstructor(Object* item, const String& text, Object* tag) {
    RuntimeMenuItemTextSetter(item, 0, text);
    RuntimeMenuItemTagSetter(item, 0, tag);
}

void RuntimeEnableMenu(Object* item) { RuntimeMenuItemEnabledSetter(item, 0, true); }

void RuntimeCloseMenuItem(Object* item) {
    const Ref<Object> kept(item);
    core::leave_parent(item);
    if (core::original_of(item) != item) return;
    // A clone may go for good as it leaves.
    while (true) {
        const auto& clones = core::menu_item_state(item).clones;
        const auto placed =
            std::ranges::find_if(clones, [](Object* clone) { return core::menu_item_state(clone).parent != nullptr; });
        if (placed == clones.end()) return;
        core::leave_parent(*placed);
    }
}

Ref<Object> RuntimeMenuItemItem(Object* item, std::int32_t position) { return core::entries_of(item)->at(position); }
std::int32_t RuntimeMenuItemCount(Object* item) { return core::entries_of(item)->upper_bound() + 1; }

Ref<Object> RuntimeMenuItemChild(Object* item, const String& name) {
    Ref<Object> found;
    core::for_each_entry(item, [&](const Ref<Object>& entry) {
        if (!found && values_of(entry.object()).name == name.view()) found = entry;
    });
    return found;
}

void RuntimeMenuItemAppend(Object* item, Object* child) { core::append_entry(item, child); }

void RuntimeMenuItemInsert(Object* item, std::int32_t position, Object* child) {
    core::insert_entry(item, position, child);
}

void RuntimeMenuItemRemoveIndex(Object* item, std::int32_t position) { core::remove_entry(item, position); }

void RuntimeMenuItemRemoveItem(Object* item, Object* child) {
    const std::int32_t position = core::entries_of(item)->index_of(Arg<Object>(child));
    if (position >= 0) core::remove_entry(item, position);
}

void RuntimeMenuItemRemoveByName(Object* item, const String& name) {
    if (const Ref<Object> child = RuntimeMenuItemChild(item, name)) RuntimeMenuItemRemoveItem(item, child.object());
}

Ref<Object> RuntimeMenuItemLookup(Object* item, const String& name) { return core::find_named(item, name.view()); }

Ref<Object> RuntimeMenuItemLookupArray(Object* item, const String& name, std::int32_t index) {
    return core::find_below(item, [&](Object* candidate) {
        return values_of(candidate).name == name.view() && values_of(candidate).index == index;
    });
}

void RuntimeMenuItemSwap(Object* item, const String& name, Object* other) {
    if (other == nullptr) RaiseNilObjectException();
    const Ref<Object> kept(other);
    const Ref<Object> leaving = core::find_named(item, name.view());
    if (!leaving || leaving == kept) return;
    core::replace_entry(leaving.object(), other);
}

void MenuBarInstallClone(Object* bar, Object* item) { core::append_entry(bar, core::clone_item(item, bar).object()); }

String RuntimeMenuItemNameGetter(Object* item, std::int32_t) { return String(std::string_view(values_of(item).name)); }
void RuntimeMenuItemNameSetter(Object* item, std::int32_t, const String& name) {
    core::set_value(item, &Values::name, std::string(name.view()));
}
std::int32_t RuntimeMenuItemIndexGetter(Object* item, std::int32_t) { return values_of(item).index; }
void RuntimeMenuItemIndexSetter(Object* item, std::int32_t, std::int32_t index) {
    core::set_value(item, &Values::index, index);
}
Ref<Object> RuntimeMenuItemTagGetter(Object* item, std::int32_t) { return values_of(item).tag; }
void RuntimeMenuItemTagSetter(Object* item, std::int32_t, Object* tag) { values_of(item).tag = Ref<Object>(tag); }
String RuntimeMenuItemTextGetter(Object* item, std::int32_t) { return String(std::string_view(values_of(item).text)); }
void RuntimeMenuItemTextSetter(Object* item, std::int32_t, const String& text) {
    core::set_value(item, &Values::text, std::string(text.view()));
}
bool RuntimeMenuItemCheckedGetter(Object* item, std::int32_t) { return values_of(item).checked; }
void RuntimeMenuItemCheckedSetter(Object* item, std::int32_t, bool checked) {
    core::set_value(item, &Values::checked, checked);
}
bool RuntimeMenuItemEnabledGetter(Object* item, std::int32_t) { return values_of(item).enabled; }
void RuntimeMenuItemEnabledSetter(Object* item, std::int32_t, bool enabled) {
    core::set_value(item, &Values::enabled, enabled);
}
bool RuntimeMenuItemVisibleGetter(Object* item, std::int32_t) { return values_of(item).visible; }
void RuntimeMenuItemVisibleSetter(Object* item, std::int32_t, bool visible) {
    core::set_value(item, &Values::visible, visible);
}
String RuntimeMenuItemCommandKeyGetter(Object* item, std::int32_t) {
    return String(std::string_view(values_of(item).shortcut));
}
void RuntimeMenuItemCommandKeySetter(Object* item, std::int32_t, const String& keys) {
    core::set_value(item, &Values::shortcut, std::string(keys.view()));
}
bool RuntimeMenuItemAutoEnableGetter(Object* item, std::int32_t) { return values_of(item).auto_enable; }
void RuntimeMenuItemAutoEnableSetter(Object* item, std::int32_t, bool automatic) {
    core::set_value(item, &Values::auto_enable, automatic);
}

String RuntimeMenuItemBalloonHelpGetter(Object* item, std::int32_t) {
    return String(std::string_view(values_of(item).help));
}
void RuntimeMenuItemBalloonHelpSetter(Object* item, std::int32_t, const String& help) {
    core::set_value(item, &Values::help, std::string(help.view()));
}
String RuntimeMenuItemDisabledHelpGetter(Object* item, std::int32_t) {
    return String(std::string_view(values_of(item).disabled_help));
}
void RuntimeMenuItemDisabledHelpSetter(Object* item, std::int32_t, const String& help) {
    core::set_value(item, &Values::disabled_help, std::string(help.view()));
}
Ref<Object> RuntimeMenuItemEnabledIconGetter(Object* item, std::int32_t) { return values_of(item).icon; }
void RuntimeMenuItemEnabledIconSetter(Object* item, std::int32_t, Object* icon) {
    core::set_value(item, &Values::icon, Ref<Object>(icon));
}
bool RuntimeMenuItemBoldGetter(Object* item, std::int32_t) { return values_of(item).bold; }
void RuntimeMenuItemBoldSetter(Object* item, std::int32_t, bool bold) { core::set_value(item, &Values::bold, bold); }
bool RuntimeMenuItemItalicsGetter(Object* item, std::int32_t) { return values_of(item).italic; }
void RuntimeMenuItemItalicsSetter(Object* item, std::int32_t, bool italic) {
    core::set_value(item, &Values::italic, italic);
}
bool RuntimeMenuItemUnderlineGetter(Object* item, std::int32_t) { return values_of(item).underline; }
void RuntimeMenuItemUnderlineSetter(Object* item, std::int32_t, bool underline) {
    core::set_value(item, &Values::underline, underline);
}

}  // namespace tavrik
