#pragma once

#include <tavrik/object.h>

namespace tavrik {

TAVRIK_API void VirtVolDestructor(Object* volume);
// A new FolderItem for the folder that holds all others. nil for a VirtualVolume that no FolderItem has opened or made.
TAVRIK_API Ref<Object> VirtVolRootGetter(Object* volume, std::int32_t);

}  // namespace tavrik
