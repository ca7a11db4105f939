#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

// Menus are trees of items, and a menu bar is an item whose children are the menus. A text of "-" is a separator, "&"
// marks the mnemonic letter.
namespace tavrik {

TAVRIK_API void MenuItemInitializer(Object* item);
TAVRIK_API void MenuItemFinalizer(Object* item);
TAVRIK_API void MenuBarInitializer(Object* bar);
TAVRIK_API void RuntimeMenuItemDefaultConstructor(Object* item);
// Sets text and tag.
TAVRIK_API void MenuItemConstructor(Object* item, const String& text, Object* tag);

TAVRIK_API void RuntimeEnableMenu(Object* item);
// Takes the item out of its parent, and its clones out of theirs.
TAVRIK_API void RuntimeCloseMenuItem(Object* item);
// Positions count from 0. A position outside raises OutOfBoundsException, a name that isn't there yields nil.
TAVRIK_API Ref<Object> RuntimeMenuItemItem(Object* item, std::int32_t position);
TAVRIK_API std::int32_t RuntimeMenuItemCount(Object* item);
TAVRIK_API Ref<Object> RuntimeMenuItemChild(Object* item, const String& name);
// An item that has a parent leaves it first. nil raises NilObjectException, an item above the parent
// IllegalCastException.
TAVRIK_API void RuntimeMenuItemAppend(Object* item, Object* child);
TAVRIK_API void RuntimeMenuItemInsert(Object* item, std::int32_t position, Object* child);
TAVRIK_API void RuntimeMenuItemRemoveIndex(Object* item, std::int32_t position);
TAVRIK_API void RuntimeMenuItemRemoveItem(Object* item, Object* child);
TAVRIK_API void RuntimeMenuItemRemoveByName(Object* item, const String& name);
// Looks through the whole tree below; with an index, for an item of a menu array.
TAVRIK_API Ref<Object> RuntimeMenuItemLookup(Object* item, const String& name);
TAVRIK_API Ref<Object> RuntimeMenuItemLookupArray(Object* item, const String& name, std::int32_t index);

// Puts an item in the place of the one of that name anywhere below, which leaves it. Does nothing without one of the
// name; nil raises NilObjectException.
TAVRIK_API void RuntimeMenuItemSwap(Object* item, const String& name, Object* other);
// Appends a clone of the item to the bar: an object of the same class that has the item's values and entries, now and
// later, and acts as the item. nil raises NilObjectException, an item above the bar IllegalCastException.
TAVRIK_API void MenuBarInstallClone(Object* bar, Object* item);
// Shows the entries at the pointer, or at a place of the screen, and returns the chosen one, which has done what it
// does by then, or nil.
TAVRIK_API Ref<Object> RuntimeMenuItemPopUpByCursor(Object* item);
TAVRIK_API Ref<Object> RuntimeMenuItemPopUp(Object* item, std::int32_t left, std::int32_t top);

TAVRIK_API String RuntimeMenuItemNameGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemNameSetter(Object* item, std::int32_t, const String& name);
TAVRIK_API std::int32_t RuntimeMenuItemIndexGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemIndexSetter(Object* item, std::int32_t, std::int32_t index);
TAVRIK_API Ref<Object> RuntimeMenuItemTagGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemTagSetter(Object* item, std::int32_t, Object* tag);
// The second is shown while the item is disabled, if it isn't empty.
TAVRIK_API String RuntimeMenuItemBalloonHelpGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemBalloonHelpSetter(Object* item, std::int32_t, const String& help);
TAVRIK_API String RuntimeMenuItemDisabledHelpGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemDisabledHelpSetter(Object* item, std::int32_t, const String& help);
TAVRIK_API String RuntimeMenuItemTextGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemTextSetter(Object* item, std::int32_t, const String& text);
TAVRIK_API bool RuntimeMenuItemCheckedGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemCheckedSetter(Object* item, std::int32_t, bool checked);
TAVRIK_API bool RuntimeMenuItemEnabledGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemEnabledSetter(Object* item, std::int32_t, bool enabled);
TAVRIK_API bool RuntimeMenuItemVisibleGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemVisibleSetter(Object* item, std::int32_t, bool visible);
// "Cmd+Shift+Q": Cmd is the platform's own command key. "Q" alone means "Cmd+Q".
TAVRIK_API String RuntimeMenuItemCommandKeyGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemCommandKeySetter(Object* item, std::int32_t, const String& keys);
TAVRIK_API Ref<Object> RuntimeMenuItemEnabledIconGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemEnabledIconSetter(Object* item, std::int32_t, Object* icon);
TAVRIK_API bool RuntimeMenuItemBoldGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemBoldSetter(Object* item, std::int32_t, bool bold);
TAVRIK_API bool RuntimeMenuItemItalicsGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemItalicsSetter(Object* item, std::int32_t, bool italic);
TAVRIK_API bool RuntimeMenuItemUnderlineGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemUnderlineSetter(Object* item, std::int32_t, bool underline);
// Whether the item is enabled just when something would happen on choosing it.
TAVRIK_API bool RuntimeMenuItemAutoEnableGetter(Object* item, std::int32_t);
TAVRIK_API void RuntimeMenuItemAutoEnableSetter(Object* item, std::int32_t, bool automatic);

// Raises the "Action" event that a subclass or an instance has put behind the item's own; unless its handler returns
// true, the program is asked to quit.
TAVRIK_API bool QuitMenuAction(Object* item);
// Raises that event too, and returns what its handler returns.
TAVRIK_API bool PrefsMenuAction(Object* item);

}  // namespace tavrik
