#pragma once

#include "toolkit/core/menu_handlers.h"

namespace tavrik::core {

bool quits_with_last_window();

// nullptr for none.
Object* application_menu_bar(Object* app);
const MenuHandlers& application_menu_handlers(Object* app);

// A front that is new learns what the application says of the whole program.
void tell_front_of(Object* app);

}  // namespace tavrik::core
