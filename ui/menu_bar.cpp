#include "ui/menu_bar.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&MenuBar::_InstallClone, MenuBarInstallClone>("_InstallClone"),
};

}  // namespace

const ClassDefinition& MenuBar::definition() {
    static constexpr ClassDefinition kDefinition = define<MenuBar>({
        .init = init_forwards_to<MenuBar, MenuBarInitializer>,
        .operations = kOperations,
    });
    return kDefinition;
}

}  // namespace tavrik
