#pragma once

#include "toolkit/front/descriptions.h"

#include <QPoint>
#include <QSize>

#include <optional>

class QWidget;

namespace tavrik::front::qt {

// Where a window of this size opens, given the window that was in front before it, if any; nothing where the window
// manager chooses.
std::optional<QPoint> opening_position(Placement placement, QSize size, const QWidget* in_front);

}  // namespace tavrik::front::qt
