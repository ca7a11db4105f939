#pragma once

#include "runtime/class.h"

#include <tavrik/virtual_volume.h>

namespace tavrik {

struct FolderItem;

// A folder tree inside one file, opened or made by way of the file's FolderItem. It stays open while it or an item of
// it lives.
struct VirtualVolume : Class<VirtualVolume> {
    static const ClassDefinition& definition();

    Ref<FolderItem> Root();
};

}  // namespace tavrik
