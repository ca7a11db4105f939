#pragma once

#include <optional>
#include <string>

namespace tavrik::front::qt {

// Why no window could be shown, in words, or nothing if one could. QApplication ends the process where it finds no
// display, so this is asked before there is one.
std::optional<std::string> missing_display();

}  // namespace tavrik::front::qt
