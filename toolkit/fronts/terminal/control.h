#pragma once

#include "toolkit/fronts/terminal/window_view.h"

#include <vector>

namespace tavrik::front::terminal {

// One thing in a window that has a number, of whatever kind.
class Control {
public:
    virtual bool visible() const = 0;
    virtual int tab_index() const = 0;
    virtual ControlView view() const = 0;
    // Does what naming the control in a line does. May destroy the control.
    virtual void use() = 0;
    virtual void report_focus(bool has_focus) = 0;

protected:
    ~Control() = default;
};

// The controls of one window, in the order in which they were made. Shared by the window and its controls, since
// either may go first.
class ControlList {
public:
    void add(Control& control);
    void remove(Control& control);
    // The visible ones; those of one tab index in the order in which they were made.
    std::vector<Control*> in_tab_order() const;
    void focus(Control& control);

private:
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
};

}  // namespace tavrik::front::terminal
