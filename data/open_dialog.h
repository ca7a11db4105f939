#pragma once

#include "data/folder_item_dialog.h"

namespace tavrik {

// Lets the person choose an existing file.
struct OpenDialog : Class<OpenDialog, FolderItemDialog> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik
