#pragma once

#include "runtime/class.h"

#include <tavrik/folder_item.h>

namespace tavrik {

struct BinaryStream;
struct Date;
struct EditField;
struct MouseCursor;
struct Movie;
struct Permissions;
struct Picture;
struct ResourceFork;
struct Sound;
struct TextInputStream;
struct TextOutputStream;
struct VirtualVolume;

// Names one file or folder. What fails shows in LastErrorCode, and where an object is returned in a nil.
struct FolderItem : Class<FolderItem> {
    static const ClassDefinition& definition();

    void FolderItem_() { dispatch<pick<void()>(&FolderItem::FolderItem_)>(this); }
    void FolderItem_(const String& path, std::int32_t form) {
        dispatch<pick<void(const String&, std::int32_t)>(&FolderItem::FolderItem_)>(this, path, form);
    }
    void FolderItem_(Arg<FolderItem> other) {
        dispatch<pick<void(Arg<FolderItem>)>(&FolderItem::FolderItem_)>(this, other);
    }
    // Entries of a folder, positions from 1. The true ones are links themselves, the others what a link leads to.
    Ref<FolderItem> Item(std::int32_t position) { return dispatch<&FolderItem::Item>(this, position); }
    Ref<FolderItem> TrueItem(std::int32_t position) { return dispatch<&FolderItem::TrueItem>(this, position); }
    Ref<FolderItem> Child(const String& name) { return dispatch<&FolderItem::Child>(this, name); }
    Ref<FolderItem> TrueChild(const String& name) { return dispatch<&FolderItem::TrueChild>(this, name); }
    Ref<TextInputStream> OpenAsTextFile() { return dispatch<&FolderItem::OpenAsTextFile>(this); }
    Ref<TextOutputStream> AppendToTextFile() { return dispatch<&FolderItem::AppendToTextFile>(this); }
    Ref<TextOutputStream> CreateTextFile() { return dispatch<&FolderItem::CreateTextFile>(this); }
    Ref<tavrik::VirtualVolume> CreateVirtualVolume() { return dispatch<&FolderItem::CreateVirtualVolume>(this); }
    Ref<tavrik::VirtualVolume> OpenAsVirtualVolume() { return dispatch<&FolderItem::OpenAsVirtualVolume>(this); }
    // Opens the file for reading, or for reading and writing. nil if it can't be opened.
    Ref<BinaryStream> OpenAsBinaryFile(bool write) { return dispatch<&FolderItem::OpenAsBinaryFile>(this, write); }
    Ref<BinaryStream> CreateBinaryFile(const String& type) {
        return dispatch<&FolderItem::CreateBinaryFile>(this, type);
    }
    Ref<ResourceFork> OpenResourceFork() { return dispatch<&FolderItem::OpenResourceFork>(this); }
    Ref<ResourceFork> CreateResourceFork(const String& type) {
        return dispatch<&FolderItem::CreateResourceFork>(this, type);
    }
    Ref<MouseCursor> _OpenAsCursor() { return dispatch<&FolderItem::_OpenAsCursor>(this); }
    Ref<ArrayOf<Picture>> _OpenAsIcons() { return dispatch<&FolderItem::_OpenAsIcons>(this); }
    Ref<Picture> OpenAsPicture() { return dispatch<&FolderItem::OpenAsPicture>(this); }
    Ref<Picture> OpenAsVectorPicture() { return dispatch<&FolderItem::OpenAsVectorPicture>(this); }
    Ref<Sound> OpenAsSound() { return dispatch<&FolderItem::OpenAsSound>(this); }
    Ref<Movie> OpenAsMovie() { return dispatch<&FolderItem::OpenAsMovie>(this); }
    Ref<Movie> OpenResourceMovie(std::int32_t number) { return dispatch<&FolderItem::OpenResourceMovie>(this, number); }
    void OpenStyledEditField(Arg<EditField> field) { dispatch<&FolderItem::OpenStyledEditField>(this, field); }
    void SaveStyledEditField(Arg<EditField> field) { dispatch<&FolderItem::SaveStyledEditField>(this, field); }
    void SaveAsPicture(Arg<Picture> picture, std::int32_t format) {
        dispatch<&FolderItem::SaveAsPicture>(this, picture, format);
    }
    void SaveAsJPEG(Arg<Picture> picture) { dispatch<&FolderItem::SaveAsJPEG>(this, picture); }
    void Delete() { dispatch<&FolderItem::Delete>(this); }
    void CreateAsFolder() { dispatch<&FolderItem::CreateAsFolder>(this); }
    void Launch(bool activate) { dispatch<pick<void(bool)>(&FolderItem::Launch)>(this, activate); }
    void Launch(const String& parameters, bool activate) {
        dispatch<pick<void(const String&, bool)>(&FolderItem::Launch)>(this, parameters, activate);
    }
    // Into a folder, or to a name that nothing has. Nothing is replaced.
    void CopyFileTo(Arg<FolderItem> destination) { dispatch<&FolderItem::CopyFileTo>(this, destination); }
    void MoveFileTo(Arg<FolderItem> destination) { dispatch<&FolderItem::MoveFileTo>(this, destination); }
    // GetRelative of the folder that is given here finds the item again, also when both have been moved.
    String GetSaveInfo(Arg<FolderItem> relative_to, std::int32_t mode) {
        return dispatch<&FolderItem::GetSaveInfo>(this, relative_to, mode);
    }
    Ref<FolderItem> GetRelative(const String& save_info) { return dispatch<&FolderItem::GetRelative>(this, save_info); }
    void _MakeFileExecutable() { dispatch<&FolderItem::_MakeFileExecutable>(this); }
    std::int32_t Permissions() { return dispatch<&FolderItem::Permissions>(this); }
    void set_Permissions(Arg<tavrik::Permissions> permissions) {
        dispatch<pick<void(Arg<tavrik::Permissions>)>(&FolderItem::set_Permissions)>(this, permissions);
    }
    void set_Permissions(std::int32_t mode) {
        dispatch<pick<void(std::int32_t)>(&FolderItem::set_Permissions)>(this, mode);
    }
    void __DependencyList() { dispatch<&FolderItem::__DependencyList>(this); }
    void Constructor() { dispatch<pick<void()>(&FolderItem::Constructor)>(this); }
    void Constructor(Arg<FolderItem> other) {
        dispatch<pick<void(Arg<FolderItem>)>(&FolderItem::Constructor)>(this, other);
    }
    void Constructor(const String& path, std::int32_t form) {
        dispatch<pick<void(const String&, std::int32_t)>(&FolderItem::Constructor)>(this, path, form);
    }

    String AbsolutePath() { return fileAbsolutePathGetter(this, 0); }
    std::int32_t Count() { return fileCountGetter(this, 0); }
    String Name() { return fileNameGetter(this, 0); }
    void set_Name(const String& value) { fileNameSetter(this, 0, value); }
    String DisplayName() { return FileDisplayNameGetter(this, 0); }
    std::uint64_t Length() { return fileSizeGetter(this, 0); }
    std::int32_t ResourceForkLength() { return fileRFSizeGetter(this, 0); }
    bool ExtensionVisible() { return FileExtensionVisibleGetter(this, 0); }
    void set_ExtensionVisible(bool value) { FileExtensionVisibleSetter(this, 0, value); }
    bool Locked() { return fileLockedGetter(this, 0); }
    void set_Locked(bool value) { fileLockedSetter(this, 0, value); }
    bool Exists() { return fileExistsGetter(this, 0); }
    bool Alias() { return fileAliasGetter(this, 0); }
    bool Visible() { return fileVisibleGetter(this, 0); }
    void set_Visible(bool value) { fileVisibleSetter(this, 0, value); }
    bool Directory() { return fileDirectoryGetter(this, 0); }
    String Type() { return fileTypeGetter(this, 0); }
    Ref<FolderItem> Parent() { return static_ref<FolderItem>(folderParentGetter(this, 0)); }
    Ref<Date> CreationDate() { return static_ref<Date>(folderGetCreation(this, 0)); }
    void set_CreationDate(Arg<Date> value) { folderSetCreation(this, 0, value.object()); }
    Ref<Date> ModificationDate() { return static_ref<Date>(folderGetModified(this, 0)); }
    void set_ModificationDate(Arg<Date> value) { folderSetModified(this, 0, value.object()); }
    String MacType() { return fileMacTypeGetter(this, 0); }
    void set_MacType(const String& value) { fileMacTypeSetter(this, 0, value); }
    String MacCreator() { return fileMacCreatorGetter(this, 0); }
    void set_MacCreator(const String& value) { fileMacCreatorSetter(this, 0, value); }
    Ref<FolderItem> DesktopFolder() { return static_ref<FolderItem>(folderFindFolder(this, kDesktopFolder)); }
    Ref<FolderItem> TrashFolder() { return static_ref<FolderItem>(folderFindFolder(this, kTrashFolder)); }
    Ref<FolderItem> SharedTrashFolder() { return static_ref<FolderItem>(folderFindFolder(this, kSharedTrashFolder)); }
    Ref<FolderItem> TemporaryFolder() { return static_ref<FolderItem>(folderFindFolder(this, kTemporaryFolder)); }
    Ref<tavrik::VirtualVolume> VirtualVolume() {
        return static_ref<tavrik::VirtualVolume>(folderVirtVolGetter(this, 0));
    }
    bool IsReadable() { return FolderItemIsCurrentlyReadable(this, 0); }
    bool IsWriteable() { return FolderItemIsCurrentlyWriteable(this, 0); }
    std::int32_t LastErrorCode() { return FolderItemGetLastError(this, 0); }
    void set_LastErrorCode(std::int32_t value) { FolderItemSetLastError(this, 0, value); }
    std::int32_t MacVRefNum() { return fileVRefNumGetter(this, 0); }
    std::int32_t MacDirID() { return fileDirIDGetter(this, 0); }
    String ShellPath() { return FileShellPathGetter(this, 0); }
    String URLPath() { return FileURLGetter(this, 0); }
    String Group() { return FolderItemGroupGetter(this, 0); }
    void set_Group(const String& value) { FolderItemGroupSetter(this, 0, value); }
    String Owner() { return FolderItemOwnerGetter(this, 0); }
    void set_Owner(const String& value) { FolderItemOwnerSetter(this, 0, value); }
};

}  // namespace tavrik
