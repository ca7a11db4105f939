#pragma once

#include "bench/controls/places.h"
#include "ui/window.h"

// Windows of the class layer, which are open and not shown yet.
namespace tavrik::bench {

Ref<Window> make_window();
Ref<Window> make_window_with_buttons(int count, ButtonHeight height);
Ref<Window> make_window_with_canvases(Tree tree);

}  // namespace tavrik::bench
