#pragma once

#include "runtime/class.h"

namespace tavrik {

// What can be told of an object that is neither a control nor a window: its window is its second operation.
struct _PaneChild : Interface<_PaneChild> {};

// How a control hears of the mouse. The members call an object that implements the interface.
struct _MouseEvents : Interface<_MouseEvents> {
    static bool _MouseDown(Object* object, std::int32_t x, std::int32_t y) {
        return operation<0, bool (*)(Object*, std::int32_t, std::int32_t)>(object)(object, x, y);
    }
    static void _MouseDrag(Object* object, std::int32_t x, std::int32_t y) {
        operation<1, void (*)(Object*, std::int32_t, std::int32_t)>(object)(object, x, y);
    }
    static void _MouseUp(Object* object, std::int32_t x, std::int32_t y) {
        operation<2, void (*)(Object*, std::int32_t, std::int32_t)>(object)(object, x, y);
    }
};

// How a control hears of the focus.
struct _FocusEvents : Interface<_FocusEvents> {
    static void _GotFocus(Object* object) { operation<0, void (*)(Object*)>(object)(object); }
    static void _LostFocus(Object* object) { operation<1, void (*)(Object*)>(object)(object); }
};

}  // namespace tavrik
