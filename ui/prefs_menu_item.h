#pragma once

#include "ui/menu_item.h"

namespace tavrik {

// The entry for the preferences of the program.
struct PrefsMenuItem : Class<PrefsMenuItem, MenuItem> {
    static const ClassDefinition& definition();

    bool Event_Action() { return dispatch<&PrefsMenuItem::Event_Action>(this); }

    struct Events {
        // Free for subclasses: the class handles the inherited event of this name itself.
        static inline constinit Event<bool()> Action;
    };
};

}  // namespace tavrik
