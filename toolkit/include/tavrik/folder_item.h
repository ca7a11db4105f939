#pragma once

#include <tavrik/array.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

// An item names one file or folder by its absolute path. Names are bytes. What fails raises nothing: an operation that
// returns an object returns nil, and LastErrorCode has the system's number for the reason (errno), which is also the
// message of the exception that the nil leads to. An operation that works sets it to 0; a property that can be read
// leaves it.
namespace tavrik {

enum PathForm : std::int32_t {
    kPathAbsolute,  // as the system has it; a relative one counts from the current folder
    kPathShell,     // one word of a shell's line
    kPathURL,       // "file:///" and percent escapes
};

enum SaveInfoMode : std::int32_t {
    kSaveInfoRelativeFirst,
    kSaveInfoAbsoluteFirst,
};

// Four characters, the first in the highest byte.
enum SpecialFolder : std::int32_t {
    kDesktopFolder = 0x6465736B,
    kTrashFolder = 0x74727368,
    kSharedTrashFolder = 0x656D7074,
    kTemporaryFolder = 0x74656D70,
};

// The current folder.
TAVRIK_API void FolderItemPathCtorNoParams(Object* item);
// Raises UnsupportedFormatException for a path that isn't of the form, and for a form that there isn't.
TAVRIK_API void FolderItemPathCtor(Object* item, const String& path, std::int32_t form);
TAVRIK_API void FolderItemCopyCtor(Object* item, Object* other);
TAVRIK_API void FolderItemDestructor(Object* item);

// An entry of a folder by its position, from 1, in the byte order of the names. Neighbouring positions, asked for one
// after the other, go through the folder as it was when the walk began. A link gives what it leads to, the other form
// the link itself.
TAVRIK_API Ref<Object> FolderItemItem(Object* item, std::int32_t position);
TAVRIK_API Ref<Object> FolderItemTrueItem(Object* item, std::int32_t position);
// An entry by its name, which need not be there.
TAVRIK_API Ref<Object> FolderChild(Object* item, const String& name);
TAVRIK_API Ref<Object> FolderTrueChild(Object* item, const String& name);

TAVRIK_API Ref<Object> FolderItemOpenTextFile(Object* item);
// Writes behind what the file has; makes it if it isn't there.
TAVRIK_API Ref<Object> FolderItemAppendTextFile(Object* item);
// Opens an empty file for writing: a new one, or one that was there and loses its bytes.
TAVRIK_API Ref<Object> FolderItemCreateTextFile(Object* item);
// What the program has no class for raises ServiceNotAvailableException.
TAVRIK_API Ref<Object> FolderItemCreateVirtualVolume(Object* item);
TAVRIK_API Ref<Object> FolderItemOpenAsVirtualVolume(Object* item);
TAVRIK_API Ref<Object> folderOpenResourceFork(Object* item);
TAVRIK_API Ref<Object> folderCreateResourceFork(Object* item, const String& type);
TAVRIK_API Ref<Object> FolderItemOpenAsCursor(Object* item);
TAVRIK_API Ref<Object> FolderItemOpenAsIcons(Object* item);
TAVRIK_API Ref<Object> FolderItemOpenImage(Object* item);
TAVRIK_API Ref<Object> FolderItemOpenVectorImage(Object* item);
TAVRIK_API Ref<Object> FolderItemOpenSound(Object* item);
TAVRIK_API Ref<Object> FolderItemOpenMovie(Object* item);
TAVRIK_API Ref<Object> FolderItemOpenResourceMovie(Object* item, std::int32_t number);
TAVRIK_API void FolderItemOpenStyledEditField(Object* item, Object* field);
TAVRIK_API void FolderItemSaveStyledEditField(Object* item, Object* field);
TAVRIK_API void FolderItemSaveAsPicture(Object* item, Object* picture, std::int32_t format);
TAVRIK_API void FolderItemSaveAsJPEG(Object* item, Object* picture);
TAVRIK_API Ref<Object> folderVirtVolGetter(Object* item, std::int32_t);

// Opens an existing file and returns the stream, or nil. Only regular files are opened, and opening never waits.
TAVRIK_API Ref<Object> FolderItemOpenBinaryFile(Object* item, bool write);
// Opens an empty file for writing: a new one, or one that was there and loses its bytes. If `type` names a registered
// type, the file gets its Macintosh type and creator where the file system keeps such.
TAVRIK_API Ref<Object> FolderItemCreateBinaryFile(Object* item, const String& type);
TAVRIK_API void FolderItemCreateAsFolder(Object* item);
// Deletes a file, an empty folder, or a link and never what it leads to.
TAVRIK_API void FolderItemDelete(Object* item);
// Into a folder under the same name, or to a name that nothing has. Nothing is replaced. A moved item names the new
// place.
TAVRIK_API void FolderItemCopyFileTo(Object* item, Object* destination);
TAVRIK_API void FolderItemMoveFileTo(Object* item, Object* destination);
// Hands the item to the desktop, and doesn't wait for it. Whether it comes to the front is a wish.
TAVRIK_API void FolderItemLaunch(Object* item, bool activate);
// Runs a program with the words of `parameters`.
TAVRIK_API void FolderItemLaunchWithParameters(Object* item, const String& parameters, bool activate);
TAVRIK_API void FolderItemImpMakeFileExecutable(Object* item);

// A text by which GetRelative of the same folder, or of one that stands in its place, finds the item again.
TAVRIK_API String FolderItemGetSaveInfo(Object* item, Object* relative_to, std::int32_t mode);
TAVRIK_API Ref<Object> FolderItemGetRelative(Object* item, const String& save_info);

// The permission bits of the mode.
TAVRIK_API std::int32_t FolderItemGetPermissions(Object* item);
TAVRIK_API void FolderItemSetPermissionsClass(Object* item, Object* permissions);
TAVRIK_API void FolderItemSetPermissionsInteger(Object* item, std::int32_t mode);

TAVRIK_API String fileAbsolutePathGetter(Object* item, std::int32_t);
TAVRIK_API String FileShellPathGetter(Object* item, std::int32_t);
TAVRIK_API String FileURLGetter(Object* item, std::int32_t);
TAVRIK_API String fileNameGetter(Object* item, std::int32_t);
// Renames what is there, and replaces nothing.
TAVRIK_API void fileNameSetter(Object* item, std::int32_t, const String& name);
// The name as text: bytes that aren't UTF-8 are shown as escapes.
TAVRIK_API String FileDisplayNameGetter(Object* item, std::int32_t);
TAVRIK_API std::int32_t fileCountGetter(Object* item, std::int32_t);
TAVRIK_API std::uint64_t fileSizeGetter(Object* item, std::int32_t);
TAVRIK_API std::int32_t fileRFSizeGetter(Object* item, std::int32_t);
TAVRIK_API bool FileExtensionVisibleGetter(Object* item, std::int32_t);
TAVRIK_API void FileExtensionVisibleSetter(Object* item, std::int32_t, bool visible);
// Nobody has the permission to write. Unlocking gives it to the owner.
TAVRIK_API bool fileLockedGetter(Object* item, std::int32_t);
TAVRIK_API void fileLockedSetter(Object* item, std::int32_t, bool locked);
TAVRIK_API bool fileExistsGetter(Object* item, std::int32_t);
TAVRIK_API bool fileAliasGetter(Object* item, std::int32_t);
// A name that begins with a dot is hidden; setting it renames.
TAVRIK_API bool fileVisibleGetter(Object* item, std::int32_t);
TAVRIK_API void fileVisibleSetter(Object* item, std::int32_t, bool visible);
TAVRIK_API bool fileDirectoryGetter(Object* item, std::int32_t);
// The name of the registered type that the name's extension or the Macintosh type tells, or nothing.
TAVRIK_API String fileTypeGetter(Object* item, std::int32_t);
// nil for the root.
TAVRIK_API Ref<Object> folderParentGetter(Object* item, std::int32_t);
// On the clock of the local zone at that time. POSIX can't set the creation.
TAVRIK_API Ref<Object> folderGetCreation(Object* item, std::int32_t);
TAVRIK_API void folderSetCreation(Object* item, std::int32_t, Object* date);
TAVRIK_API Ref<Object> folderGetModified(Object* item, std::int32_t);
TAVRIK_API void folderSetModified(Object* item, std::int32_t, Object* date);
// Four characters, or nothing.
TAVRIK_API String fileMacTypeGetter(Object* item, std::int32_t);
TAVRIK_API void fileMacTypeSetter(Object* item, std::int32_t, const String& type);
TAVRIK_API String fileMacCreatorGetter(Object* item, std::int32_t);
TAVRIK_API void fileMacCreatorSetter(Object* item, std::int32_t, const String& creator);
// nil for a code that there isn't, and where the system has no such folder. The folder itself need not be there.
TAVRIK_API Ref<Object> folderFindFolder(Object* item, std::int32_t code);
TAVRIK_API bool FolderItemIsCurrentlyReadable(Object* item, std::int32_t);
TAVRIK_API bool FolderItemIsCurrentlyWriteable(Object* item, std::int32_t);
TAVRIK_API std::int32_t FolderItemGetLastError(Object* item, std::int32_t);
TAVRIK_API void FolderItemSetLastError(Object* item, std::int32_t, std::int32_t error);
// The lower 32 bits of the number of the device, and of the folder around the item.
TAVRIK_API std::int32_t fileVRefNumGetter(Object* item, std::int32_t);
TAVRIK_API std::int32_t fileDirIDGetter(Object* item, std::int32_t);
// Names, or numbers where they have no name. Setting takes both.
TAVRIK_API String FolderItemGroupGetter(Object* item, std::int32_t);
TAVRIK_API void FolderItemGroupSetter(Object* item, std::int32_t, const String& group);
TAVRIK_API String FolderItemOwnerGetter(Object* item, std::int32_t);
TAVRIK_API void FolderItemOwnerSetter(Object* item, std::int32_t, const String& owner);

}  // namespace tavrik
