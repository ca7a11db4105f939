#pragma once

#include "toolkit/front/descriptions.h"

#include <tavrik/object.h>

#include <optional>

namespace tavrik::core {

// A new MouseCursor that shows this.
Ref<Object> make_mouse_cursor(front::Cursor cursor);
// What a MouseCursor shows; nothing for nil, and for one that nobody has given anything to show.
std::optional<front::Cursor> cursor_of(Object* mouse_cursor);

}  // namespace tavrik::core
