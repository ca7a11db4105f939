#pragma once

#include "toolkit/front/descriptions.h"

#include <string>
#include <vector>

// A window as the terminal has it: all texts in their printed form.
namespace tavrik::front::terminal {

struct ControlView {
    std::string caption;
    std::string value;  // "": it has none
    bool enabled = true;
};

struct MenuEntry {
    MenuId id = 0;
    std::string menu;  // "Edit", or "Edit/Find" for a menu inside a menu; "" in a menu that stands by itself
    std::string text;
    bool enabled = true;
    bool checked = false;

    std::string path() const { return menu.empty() ? text : menu + '/' + text; }
};

struct WindowView {
    std::string title;
    std::vector<MenuEntry> entries;
    std::vector<ControlView> controls;  // in tab order
};

}  // namespace tavrik::front::terminal
