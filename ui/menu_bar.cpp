#include "ui/menu_bar.h"

namespace tavrik {

const ClassDefinition& MenuBar::definition() {
    static constexpr ClassDefinition kDefinition = define<MenuBar>({
        .init = init_forwards_to<MenuBar, MenuBarInitializer>,
    });
    return kDefinition;
}

}  // namespace tavrik
