#pragma once

#include <tavrik/object.h>

// What the three buttons do. Each is entered with its button.
namespace tavrik::Window1 {

void load_map(Object* button);
void null_bsp(Object* button);
void undo_null(Object* button);

}  // namespace tavrik::Window1
