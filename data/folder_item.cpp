#include "data/folder_item.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&FolderItem::OpenAsBinaryFile, FolderItemOpenBinaryFile>("OpenAsBinaryFile"),
    operation<&FolderItem::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    property<&FolderItem::AbsolutePath>("AbsolutePath"),
    property<&FolderItem::Name>("Name"),
    property<&FolderItem::LastErrorCode, &FolderItem::set_LastErrorCode>("LastErrorCode"),
};

}  // namespace

const ClassDefinition& FolderItem::definition() {
    static constexpr ClassDefinition kDefinition = define<FolderItem>({
        .exit = exit_forwards_to<FolderItem, FolderItemDestructor>,
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
