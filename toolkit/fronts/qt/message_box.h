#pragma once

#include "toolkit/front/descriptions.h"
#include "toolkit/fronts/qt/open_dialogs.h"

#include <cstddef>

namespace tavrik::front::qt {

// Returns the index of the button pressed.
std::size_t show_message(OpenDialogs& dialogs, const MessageDescription& message, QWidget* over);

}  // namespace tavrik::front::qt
