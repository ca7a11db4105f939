#pragma once

#include "ui/menu_bar.h"

namespace tavrik::tour {

// File, with "Next Page" for the window in front and Quit.
Ref<MenuBar> make_menu_bar();

// A new item. An item of a bar is handled under its name.
template <class Item = MenuItem>
Ref<Item> make_item(const String& name, const String& text, const String& shortcut = nullptr) {
    const Ref<Item> item = make<Item>();
    item->Constructor();
    item->set_Name(name);
    item->set_Text(text);
    item->set_KeyboardShortcut(shortcut);
    item->set_AutoEnable(true);
    return item;
}

}  // namespace tavrik::tour
