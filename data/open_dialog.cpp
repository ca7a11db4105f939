#include "data/open_dialog.h"

namespace tavrik {

const ClassDefinition& OpenDialog::definition() {
    static constexpr ClassDefinition kDefinition = define<OpenDialog>({
        .init = init_forwards_to<OpenDialog, OpenDialogInitializer>,
    });
    return kDefinition;
}

}  // namespace tavrik
