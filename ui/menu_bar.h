#pragma once

#include "ui/menu_item.h"

namespace tavrik {

// A menu bar is an item whose entries are the menus.
struct MenuBar : Class<MenuBar, MenuItem> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik
