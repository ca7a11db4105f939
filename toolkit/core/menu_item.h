#pragma once

#include "toolkit/front/descriptions.h"

#include <tavrik/object.h>

#include <vector>

namespace tavrik::core {

// The menus of a bar; none for nil.
std::vector<front::MenuDescription> describe_menus(Object* bar);

// Brings the enabled state of the items in a window's menus up to date: an item with AutoEnable is enabled just when
// something would happen on choosing it.
void enable_menu_items(Object* window);

// Lets an item do what it does: its own "Action" event first, then the handlers and the operation of the window, then
// those of the application. An id that no item of the window has any more does nothing.
void choose_menu_item(Object* window, front::MenuId id);

}  // namespace tavrik::core
