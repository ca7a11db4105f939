#pragma once

#include "toolkit/front/descriptions.h"

#include <QCursor>

namespace tavrik::front::qt {

QCursor to_qt(const Cursor& cursor);

}  // namespace tavrik::front::qt
