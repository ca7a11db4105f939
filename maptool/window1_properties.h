#pragma once

#include <tavrik/string.h>

// The looks of the window and of its three buttons, as packed property strings.
namespace tavrik::Window1 {

const String& window_properties();
const String& load_map_properties();
const String& null_bsp_properties();
const String& undo_null_properties();

}  // namespace tavrik::Window1
