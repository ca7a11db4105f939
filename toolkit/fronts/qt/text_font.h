#pragma once

#include "toolkit/front/descriptions.h"

#include <QFont>

namespace tavrik::front::qt {

// `style` over `base`, the font that the desktop gives this kind of control.
QFont styled(QFont base, const TextStyle& style);

}  // namespace tavrik::front::qt
