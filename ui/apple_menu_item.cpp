#include "ui/apple_menu_item.h"

namespace tavrik {

const ClassDefinition& AppleMenuItem::definition() {
    static constexpr ClassDefinition kDefinition = define<AppleMenuItem>({});
    return kDefinition;
}

}  // namespace tavrik
