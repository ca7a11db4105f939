#pragma once

#include "ui/menu_item.h"

namespace tavrik {

// The entry that quits the program.
struct QuitMenuItem : Class<QuitMenuItem, MenuItem> {
    static const ClassDefinition& definition();

    bool Event_Action() { return dispatch<&QuitMenuItem::Event_Action>(this); }

    struct Events {
        // Free for subclasses: the class handles the inherited event of this name itself.
        static inline constinit Event<bool()> Action;
    };
};

}  // namespace tavrik
