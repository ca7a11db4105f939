#pragma once

#include "toolkit/front/descriptions.h"

#include <QCursor>
#include <QWidget>

#include <optional>

namespace tavrik::front::qt {

QCursor to_qt(const Cursor& cursor);
// The one of what the widget lies in, without one.
void apply_cursor(QWidget& widget, const std::optional<Cursor>& cursor);

}  // namespace tavrik::front::qt
