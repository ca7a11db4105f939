#pragma once

#include "toolkit/fronts/terminal/window_view.h"

#include <cstddef>
#include <vector>

namespace tavrik::front::terminal {

class ControlList;

// One thing in a window, of whatever kind.
class Control {
public:
    virtual bool visible() const = 0;
    virtual int tab_index() const = 0;
    // The lines that it has in its window, each with a number; none for what only holds others.
    virtual std::vector<ControlView> views() const = 0;
    virtual const ControlList& inside() const = 0;
    // Does what naming that line of it does. May destroy the control.
    virtual void use(std::size_t part) = 0;
    // Asks for its contextual menu. Whether there is one.
    virtual bool open_menu() = 0;
    virtual void report_focus(bool has_focus) = 0;

protected:
    ~Control() = default;
};

// What lies in one thing, in the order in which it was made. Shared by that and its controls, since either may go
// first.
class ControlList {
public:
    void add(Control& control);
    void remove(Control& control);
    // The visible ones, each before what lies in it; those of one tab index in the order in which they
    // were made.
    std::vector<Control*> in_tab_order() const;

private:
    void collect(std::vector<Control*>& ordered) const;

    std::vector<Control*> controls_;
};

// Which control of a window the focus is on.
class Focus {
public:
    void set(Control& control);
    void clear();
    void forget(const Control& control);

private:
    Control* control_ = nullptr;
};

}  // namespace tavrik::front::terminal
