#pragma once

#include <tavrik/object.h>

namespace tavrik {

TAVRIK_API void mouseCursorDestructor(Object* cursor);

// A new MouseCursor of the desktop's own: 0 arrow, 1 I-beam, 2 cross, 3 wait, 4 pointing hand, 5 open hand, 6 closed
// hand, resizing 7 sideways, 8 up and down, 9 to the upper left, 10 to the upper right, 11 to all sides, 12 forbidden,
// 13 none. Others raise OutOfBoundsException.
TAVRIK_API Ref<Object> RuntimeStandardCursor(std::int32_t shape);

}  // namespace tavrik
