#pragma once

#include "toolkit/fronts/terminal/window_view.h"

#include <span>
#include <vector>

namespace tavrik::front::terminal {

// The entries of a menu bar that can be seen, menu by menu: those of a menu stand together, and the menus inside it
// follow. An entry is enabled if all the menus around it are.
std::vector<MenuEntry> menu_entries(std::span<const MenuDescription> menu_bar);
// The entries of one menu, with their paths inside it.
std::vector<MenuEntry> entries_of_menu(const MenuDescription& menu);

}  // namespace tavrik::front::terminal
