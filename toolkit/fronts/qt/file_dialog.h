#pragma once

#include "toolkit/front/descriptions.h"
#include "toolkit/fronts/qt/open_dialogs.h"

#include <optional>
#include <string>

namespace tavrik::front::qt {

// The chosen path in the file system's own bytes; nothing if the person cancelled.
std::optional<std::string> choose_file(OpenDialogs& dialogs, const FileChoice& choice, QWidget* over);

}  // namespace tavrik::front::qt
