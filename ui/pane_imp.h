#pragma once

#include <tavrik/object.h>

#include <cstdint>

namespace tavrik {

struct Graphics;
struct _Pane;

// The native side of a pane: an object of the toolkit's, which the class layer knows by the positions of its table
// alone.
struct _PaneImp : Object {
    void ResizeControl() { call<0>(); }
    void AddToParentPane() { call<1>(); }
    std::int32_t Handle() { return call<4, std::int32_t>(); }
    void SetFocus() { call<6>(); }
    void EnableDisable() { call<7>(); }
    Ref<tavrik::Graphics> Graphics() { return static_ref<tavrik::Graphics>(call<8, Ref<Object>>()); }
    void CursorChanged() { call<10>(); }
    void Close() { call<11>(); }
    void Refresh(bool erase) { call<12>(erase); }
    void RefreshRect(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height, bool erase) {
        call<13>(x, y, width, height, erase);
    }
    void Invalidate() { call<14>(); }
    void InvalidateRect(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
        call<15>(x, y, width, height);
    }

    // Does nothing: whoever makes a native side knows its pane.
    void set_Pane(Arg<_Pane>) {}

private:
    template <int Position, class R = void, class... A>
    R call(A... arguments) {
        return reinterpret_cast<R (*)(Object*, A...)>(vtable[Position])(this, arguments...);
    }
};

}  // namespace tavrik
