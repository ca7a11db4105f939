#pragma once

#include "runtime/class.h"

#include <tavrik/mouse_cursor.h>

namespace tavrik {

// What the toolkit keeps a cursor in.
struct _MouseCursorImp : Class<_MouseCursorImp> {
    static const ClassDefinition& definition();
};

// What the pointer looks like.
struct MouseCursor : Class<MouseCursor> {
    static const ClassDefinition& definition();

    // A new cursor with that inside.
    static Ref<MouseCursor> _CursorWithImp(Arg<_MouseCursorImp> imp);

    Field<_MouseCursorImp> _mImp;
};

}  // namespace tavrik
