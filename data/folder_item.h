#pragma once

#include "runtime/class.h"

#include <tavrik/folder_item.h>

namespace tavrik {

struct BinaryStream;

// Names one file or folder.
struct FolderItem : Class<FolderItem> {
    static const ClassDefinition& definition();

    // Opens the file for reading, or for reading and writing. nil if it can't be opened.
    Ref<BinaryStream> OpenAsBinaryFile(bool write) { return dispatch<&FolderItem::OpenAsBinaryFile>(this, write); }
    void __DependencyList() { dispatch<&FolderItem::__DependencyList>(this); }

    String AbsolutePath() { return fileAbsolutePathGetter(this, 0); }
    String Name() { return fileNameGetter(this, 0); }
    std::int32_t LastErrorCode() { return FolderItemGetLastError(this, 0); }
    void set_LastErrorCode(std::int32_t error) { FolderItemSetLastError(this, 0, error); }
};

}  // namespace tavrik
