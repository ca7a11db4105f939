#pragma once

#include <tavrik/object.h>

#include <string>

namespace tavrik::core {

// "" until a program has set one: then it is its own name, which a front knows.
const std::string& title_of_untitled_windows();

// The first window is complete: the frame around it has opened.
void mdi_windows_have_a_window();
// It has closed, and is not to be shown again.
void mdi_windows_lose(Object* window);

}  // namespace tavrik::core
