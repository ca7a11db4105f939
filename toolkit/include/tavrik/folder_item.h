#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

namespace tavrik {

TAVRIK_API void FolderItemDestructor(Object* item);

// Opens an existing file and returns the stream, or nil if it can't be opened: LastErrorCode of the item tells, and so
// does the message of the exception that the nil leads to. Only regular files are opened, and opening never waits.
TAVRIK_API Ref<Object> FolderItemOpenBinaryFile(Object* item, bool write);

TAVRIK_API String fileAbsolutePathGetter(Object* item, std::int32_t);
TAVRIK_API String fileNameGetter(Object* item, std::int32_t);
// The system's number for what went wrong last; 0 for nothing.
TAVRIK_API std::int32_t FolderItemGetLastError(Object* item, std::int32_t);
TAVRIK_API void FolderItemSetLastError(Object* item, std::int32_t, std::int32_t error);

}  // namespace tavrik
