#pragma once

#include "ui/canvas.h"

#include <tavrik/embedded_window_control.h>

namespace tavrik {

// Stands in for a container in the window around it, and passes each event on to it.
struct EmbeddedWindowControl : Class<EmbeddedWindowControl, Canvas> {
    static const ClassDefinition& definition();

    void Event_EnableMenuItems() { dispatch<&EmbeddedWindowControl::Event_EnableMenuItems>(this); }
    void Event_LostFocus() { dispatch<&EmbeddedWindowControl::Event_LostFocus>(this); }
    void Event_GotFocus() { dispatch<&EmbeddedWindowControl::Event_GotFocus>(this); }
    bool Event_KeyDown(const String& key) { return dispatch<&EmbeddedWindowControl::Event_KeyDown>(this, key); }
    void Event_MouseUp(std::int32_t x, std::int32_t y) { dispatch<&EmbeddedWindowControl::Event_MouseUp>(this, x, y); }
    void Event_MouseDrag(std::int32_t x, std::int32_t y) {
        dispatch<&EmbeddedWindowControl::Event_MouseDrag>(this, x, y);
    }
    bool Event_MouseDown(std::int32_t x, std::int32_t y) {
        return dispatch<&EmbeddedWindowControl::Event_MouseDown>(this, x, y);
    }
    void Event_Paint(Arg<tavrik::Graphics> graphics) { dispatch<&EmbeddedWindowControl::Event_Paint>(this, graphics); }
    bool Event_MouseWheel(std::int32_t x, std::int32_t y, std::int32_t delta_x, std::int32_t delta_y) {
        return dispatch<&EmbeddedWindowControl::Event_MouseWheel>(this, x, y, delta_x, delta_y);
    }
    void Event_DropObject(Arg<DragItem> item, std::int32_t action) {
        dispatch<&EmbeddedWindowControl::Event_DropObject>(this, item, action);
    }
    void Event_MouseExit() { dispatch<&EmbeddedWindowControl::Event_MouseExit>(this); }
    void Event_MouseEnter() { dispatch<&EmbeddedWindowControl::Event_MouseEnter>(this); }
    void Event_MouseMove(std::int32_t x, std::int32_t y) {
        dispatch<&EmbeddedWindowControl::Event_MouseMove>(this, x, y);
    }
    void Event_Close() { dispatch<&EmbeddedWindowControl::Event_Close>(this); }
    void Event_Open() { dispatch<&EmbeddedWindowControl::Event_Open>(this); }
};

}  // namespace tavrik
