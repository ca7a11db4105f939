#pragma once

#include "toolkit/front/descriptions.h"
#include "toolkit/fronts/qt/open_dialogs.h"

#include <optional>

namespace tavrik::front::qt {

// The chosen entry, or nothing.
std::optional<MenuId> pop_up(OpenDialogs& dialogs, const MenuDescription& menu, std::optional<Point> at, QWidget* over);

}  // namespace tavrik::front::qt
