#include "data/folder_item.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<pick<void()>(&FolderItem::FolderItem_), FolderItemPathCtorNoParams>("FolderItem"),
    operation<pick<void(const String&, std::int32_t)>(&FolderItem::FolderItem_), FolderItemPathCtor>("FolderItem"),
    operation<pick<void(Arg<FolderItem>)>(&FolderItem::FolderItem_), FolderItemCopyCtor>("FolderItem"),
    operation<&FolderItem::Item, FolderItemItem>("Item"),
    operation<&FolderItem::TrueItem, FolderItemTrueItem>("TrueItem"),
    operation<&FolderItem::Child, FolderChild>("Child"),
    operation<&FolderItem::TrueChild, FolderTrueChild>("TrueChild"),
    operation<&FolderItem::OpenAsTextFile, FolderItemOpenTextFile>("OpenAsTextFile"),
    operation<&FolderItem::AppendToTextFile, FolderItemAppendTextFile>("AppendToTextFile"),
    operation<&FolderItem::CreateTextFile, FolderItemCreateTextFile>("CreateTextFile"),
    operation<&FolderItem::CreateVirtualVolume, FolderItemCreateVirtualVolume>("CreateVirtualVolume"),
    operation<&FolderItem::OpenAsVirtualVolume, FolderItemOpenAsVirtualVolume>("OpenAsVirtualVolume"),
    operation<&FolderItem::OpenAsBinaryFile, FolderItemOpenBinaryFile>("OpenAsBinaryFile"),
    operation<&FolderItem::CreateBinaryFile, FolderItemCreateBinaryFile>("CreateBinaryFile"),
    operation<&FolderItem::OpenResourceFork, folderOpenResourceFork>("OpenResourceFork"),
    operation<&FolderItem::CreateResourceFork, folderCreateResourceFork>("CreateResourceFork"),
    operation<&FolderItem::_OpenAsCursor, FolderItemOpenAsCursor>("_OpenAsCursor"),
    operation<&FolderItem::_OpenAsIcons, FolderItemOpenAsIcons>("_OpenAsIcons"),
    operation<&FolderItem::OpenAsPicture, FolderItemOpenImage>("OpenAsPicture"),
    operation<&FolderItem::OpenAsVectorPicture, FolderItemOpenVectorImage>("OpenAsVectorPicture"),
    operation<&FolderItem::OpenAsSound, FolderItemOpenSound>("OpenAsSound"),
    operation<&FolderItem::OpenAsMovie, FolderItemOpenMovie>("OpenAsMovie"),
    operation<&FolderItem::OpenResourceMovie, FolderItemOpenResourceMovie>("OpenResourceMovie"),
    operation<&FolderItem::OpenStyledEditField, FolderItemOpenStyledEditField>("OpenStyledEditField"),
    operation<&FolderItem::SaveStyledEditField, FolderItemSaveStyledEditField>("SaveStyledEditField"),
    operation<&FolderItem::SaveAsPicture, FolderItemSaveAsPicture>("SaveAsPicture"),
    operation<&FolderItem::SaveAsJPEG, FolderItemSaveAsJPEG>("SaveAsJPEG"),
    operation<&FolderItem::Delete, FolderItemDelete>("Delete"),
    operation<&FolderItem::CreateAsFolder, FolderItemCreateAsFolder>("CreateAsFolder"),
    operation<pick<void(bool)>(&FolderItem::Launch), FolderItemLaunch>("Launch"),
    operation<pick<void(const String&, bool)>(&FolderItem::Launch), FolderItemLaunchWithParameters>("Launch"),
    operation<&FolderItem::CopyFileTo, FolderItemCopyFileTo>("CopyFileTo"),
    operation<&FolderItem::MoveFileTo, FolderItemMoveFileTo>("MoveFileTo"),
    operation<&FolderItem::GetSaveInfo, FolderItemGetSaveInfo>("GetSaveInfo"),
    operation<&FolderItem::GetRelative, FolderItemGetRelative>("GetRelative"),
    operation<&FolderItem::_MakeFileExecutable, FolderItemImpMakeFileExecutable>("_MakeFileExecutable"),
    operation<&FolderItem::Permissions, FolderItemGetPermissions>("Permissions"),
    operation<pick<void(Arg<tavrik::Permissions>)>(&FolderItem::set_Permissions), FolderItemSetPermissionsClass>(
        "=Permissions"),
    operation<pick<void(std::int32_t)>(&FolderItem::set_Permissions), FolderItemSetPermissionsInteger>("=Permissions"),
    operation<&FolderItem::__DependencyList, no_effect>("__DependencyList").not_public(),
    operation<pick<void()>(&FolderItem::Constructor), FolderItemPathCtorNoParams>("Constructor"),
    operation<pick<void(Arg<FolderItem>)>(&FolderItem::Constructor), FolderItemCopyCtor>("Constructor"),
    operation<pick<void(const String&, std::int32_t)>(&FolderItem::Constructor), FolderItemPathCtor>("Constructor"),
};

constexpr PropertyRow kProperties[] = {
    property<&FolderItem::AbsolutePath>("AbsolutePath"),
    property<&FolderItem::Count>("Count"),
    property<&FolderItem::Name, &FolderItem::set_Name>("Name"),
    property<&FolderItem::DisplayName>("DisplayName"),
    property<&FolderItem::Length>("Length"),
    property<&FolderItem::ResourceForkLength>("ResourceForkLength"),
    property<&FolderItem::ExtensionVisible, &FolderItem::set_ExtensionVisible>("ExtensionVisible"),
    property<&FolderItem::Locked, &FolderItem::set_Locked>("Locked"),
    property<&FolderItem::Exists>("Exists"),
    property<&FolderItem::Alias>("Alias"),
    property<&FolderItem::Visible, &FolderItem::set_Visible>("Visible"),
    property<&FolderItem::Directory>("Directory"),
    property<&FolderItem::Type>("Type"),
    property<&FolderItem::Parent>("Parent"),
    property<&FolderItem::CreationDate, &FolderItem::set_CreationDate>("CreationDate"),
    property<&FolderItem::ModificationDate, &FolderItem::set_ModificationDate>("ModificationDate"),
    property<&FolderItem::MacType, &FolderItem::set_MacType>("MacType"),
    property<&FolderItem::MacCreator, &FolderItem::set_MacCreator>("MacCreator"),
    property<&FolderItem::DesktopFolder>("DesktopFolder"),
    property<&FolderItem::TrashFolder>("TrashFolder"),
    property<&FolderItem::SharedTrashFolder>("SharedTrashFolder"),
    property<&FolderItem::TemporaryFolder>("TemporaryFolder"),
    property<&FolderItem::VirtualVolume>("VirtualVolume"),
    property<&FolderItem::IsReadable>("IsReadable"),
    property<&FolderItem::IsWriteable>("IsWriteable"),
    property<&FolderItem::LastErrorCode, &FolderItem::set_LastErrorCode>("LastErrorCode"),
    property<&FolderItem::MacVRefNum>("MacVRefNum"),
    property<&FolderItem::MacDirID>("MacDirID"),
    property<&FolderItem::ShellPath>("ShellPath"),
    property<&FolderItem::URLPath>("URLPath"),
    property<&FolderItem::Group, &FolderItem::set_Group>("Group"),
    property<&FolderItem::Owner, &FolderItem::set_Owner>("Owner"),
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
