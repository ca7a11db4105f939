#pragma once

#include "toolkit/front/front.h"

#include <tavrik/object.h>

#include <optional>
#include <vector>

namespace tavrik::core {

// The menu bar that a window shows: its own, or else the application's if the window is one that stands by itself.
// nullptr for none.
Object* menu_bar_of(Object* window);
// The menus of a bar; none for nil.
std::vector<front::MenuDescription> describe_menus(Object* bar);

// Has every window learn its menus anew: the bar that some may show is another one.
void all_menus_changed();
// Changes of the menus are gathered: faces learn of them by the end of the event, or when the front is pumped next.
void apply_menus_soon();
// Tells the faces what is waiting.
void apply_waiting_menus();

// Brings the enabled state of the items in a window's menus up to date: an item with AutoEnable is enabled just when
// something would happen on choosing it.
void enable_menu_items(Object* window);

// Lets an item do what it does: its own "Action" event first, then the handlers of the control that has the focus, of
// the window and of the application, then the operations of the two. An id that no item of the window's menus has any
// more does nothing.
void choose_menu_item(Object* window, front::MenuId id);

// Shows the entries of an item at a place of the screen, or at the pointer, and waits. Returns the chosen one, which
// has done what it does in that window by then, or nil. Everything buffered is in the files before.
Ref<Object> pop_up_menu(Object* item, std::optional<front::Point> at, Object* window);

}  // namespace tavrik::core
