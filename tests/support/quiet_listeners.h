#pragma once

#include "toolkit/front/front.h"

namespace tavrik::test {

// Wants nothing of what the person does; a test overrides what it looks at.
template <class Listener>
struct QuietInput : Listener {
    bool mouse_down(front::Point, front::MouseButton) override { return false; }
    void mouse_dragged(front::Point) override {}
    void mouse_up(front::Point) override {}
    bool mouse_wheel(front::Point, int, int) override { return false; }
    bool key_down(const front::Key&) override { return false; }
    bool menu_requested(front::Point) override { return false; }

protected:
    ~QuietInput() = default;
};

struct QuietControl : QuietInput<front::ControlListener> {
    void focus_changed(bool) override {}

protected:
    ~QuietControl() = default;
};

struct QuietWindow : QuietInput<front::WindowListener> {
    void mouse_moved(front::Point) override {}
    void mouse_left() override {}
    void close_requested() override {}
    void activated(bool) override {}
    void moved(int, int) override {}
    void resized(int, int, front::ResizePhase) override {}
    void size_state_changed(front::WindowSize) override {}
    void menus_opening() override {}
    void menu_chosen(front::MenuId) override {}

protected:
    ~QuietWindow() = default;
};

}  // namespace tavrik::test
