#pragma once

#include "ui/menu_item.h"

namespace tavrik {

// The entry that tells about the program, in the menu that the platform has for it.
struct AppleMenuItem : Class<AppleMenuItem, MenuItem> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik
