#pragma once

#include "toolkit/front/descriptions.h"

#include <tavrik/object.h>

namespace tavrik::core {

// Lets the control build a menu for a place of the content, or what it lies in, or the window, and from a container on
// its host and so forth, and shows it. Whether any of them did. nullptr stands for the bare content.
bool show_contextual_menu(Object* control, Object* window, front::Point at);

}  // namespace tavrik::core
