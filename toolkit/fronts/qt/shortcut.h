#pragma once

#include <QKeySequence>

#include <string_view>

namespace tavrik::front::qt {

// Reads "Cmd+Shift+Q", and "Q" alone as "Cmd+Q"; empty where the text names no key.
QKeySequence to_shortcut(std::string_view text);

}  // namespace tavrik::front::qt
