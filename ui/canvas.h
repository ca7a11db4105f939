#pragma once

#include "ui/rect_control.h"

#include <tavrik/canvas.h>

namespace tavrik {

struct Picture;

// An area that the program draws, and that hears of mouse and keys. Other controls can lie in it.
struct Canvas : Class<Canvas, RectControl> {
    static const ClassDefinition& definition();

    void Event_CreatePane() { dispatch<&Canvas::Event_CreatePane>(this); }
    // Moves what is shown in a part of the canvas by so much, and the controls there if told to.
    void Scroll(std::int32_t delta_x, std::int32_t delta_y, std::int32_t left, std::int32_t top, std::int32_t width,
                std::int32_t height, bool controls) {
        dispatch<&Canvas::Scroll>(this, delta_x, delta_y, left, top, width, height, controls);
    }
    bool _MouseDown(std::int32_t x, std::int32_t y) { return dispatch<&Canvas::_MouseDown>(this, x, y); }
    void _MouseDrag(std::int32_t x, std::int32_t y) { dispatch<&Canvas::_MouseDrag>(this, x, y); }
    void _MouseUp(std::int32_t x, std::int32_t y) { dispatch<&Canvas::_MouseUp>(this, x, y); }
    void _GotFocus() { dispatch<&Canvas::_GotFocus>(this); }
    void _LostFocus() { dispatch<&Canvas::_LostFocus>(this); }
    void _Paint(Arg<tavrik::Graphics> graphics) { dispatch<&Canvas::_Paint>(this, graphics); }

    Ref<tavrik::Graphics> Graphics() { return static_ref<tavrik::Graphics>(canvasGraphicsGetter(this, 0)); }
    Ref<Picture> Backdrop() { return mBackdrop; }
    void set_Backdrop(Arg<Picture> picture);
    bool AcceptFocus() { return mAcceptFocus; }
    void set_AcceptFocus(bool accepts) { mAcceptFocus = accepts; }
    bool AcceptTabs() { return mAcceptTabs; }
    void set_AcceptTabs(bool accepts) { mAcceptTabs = accepts; }
    bool UseFocusRing() { return mUseFocusRing; }
    void set_UseFocusRing(bool uses) { mUseFocusRing = uses; }
    bool EraseBackground() { return mEraseBackground; }
    void set_EraseBackground(bool erases) { mEraseBackground = erases; }

    struct Events {
        static inline constinit Event<void(Arg<tavrik::Graphics>)> Paint;
        static inline constinit Event<void()> GotFocus, LostFocus;
        static inline constinit Event<bool(std::int32_t, std::int32_t)> MouseDown;
        static inline constinit Event<void(std::int32_t, std::int32_t)> MouseDrag, MouseUp;
        static inline constinit Event<void()> EnableMenuItems;
    };

    Field<Picture> mBackdrop;
    bool mAcceptFocus, mAcceptTabs, mUseFocusRing, mEraseBackground;
};

}  // namespace tavrik
