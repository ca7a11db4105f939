#include "data/virtual_volume.h"

#include "data/folder_item.h"

namespace tavrik {
namespace {

constexpr PropertyRow kProperties[] = {
    property<&VirtualVolume::Root, ignored>("Root"),
};

}  // namespace

Ref<FolderItem> VirtualVolume::Root() { return static_ref<FolderItem>(VirtVolRootGetter(this, 0)); }

const ClassDefinition& VirtualVolume::definition() {
    static constexpr ClassDefinition kDefinition = define<VirtualVolume>({
        .exit = exit_forwards_to<VirtualVolume, VirtVolDestructor>,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
