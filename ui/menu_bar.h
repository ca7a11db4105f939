#pragma once

#include "ui/menu_item.h"

namespace tavrik {

// Installs menus in a bar. No class here does.
struct _MenuBarInstaller : Interface<_MenuBarInstaller> {};

// A menu bar is an item whose entries are the menus.
struct MenuBar : Class<MenuBar, MenuItem> {
    static const ClassDefinition& definition();

    // Appends a clone of the item, which has the item's values and entries from then on and acts as the item: so one
    // item stands in several bars.
    void _InstallClone(Arg<MenuItem> item) { dispatch<&MenuBar::_InstallClone>(this, item); }
};

}  // namespace tavrik
