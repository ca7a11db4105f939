#pragma once

#include <tavrik/object.h>
#include <tavrik/stream_access.h>
#include <tavrik/stream_error.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

namespace tavrik {

TAVRIK_API void BinaryStreamInitializer(Object* stream);
// Writes what is buffered, and closes.
TAVRIK_API void BinaryStreamDestructor(Object* stream);

// These three make the stream anew, and close what it had.
// Over the bytes of a text. What is written goes to a copy of the stream's own: read it from Position 0.
TAVRIK_API void BinaryStringStringCtor(Object* stream, const String& text);
// Over the bytes of a memory block, which is held. A write goes into the block, and past its end lets it grow.
TAVRIK_API void BinaryStringMemoryBlockCtor(Object* stream, Object* block);
// Over a file descriptor (type 0), which the stream takes over and closes unless it is 0, 1 or 2. Other types raise
// UnsupportedFormatException.
TAVRIK_API void BinaryStreamHandleCtor(Object* stream, std::int32_t handle, std::int32_t type);
// The file descriptor for type 0; -1 for others and where there is none. It stays the stream's.
TAVRIK_API std::int32_t BinaryStreamHandleGetter(Object* stream, std::int32_t type);

TAVRIK_API void BinaryStreamClose(Object* stream);
TAVRIK_API void BinaryStreamFlush(Object* stream);
TAVRIK_API bool BinaryStreamEOF(Object* stream);
TAVRIK_API std::int32_t BinaryStreamLastErrorGetter(Object* stream, std::int32_t);
TAVRIK_API std::uint64_t BinaryStreamGetLength(Object* stream, std::int32_t);
TAVRIK_API void BinaryStreamSetLength(Object* stream, std::int32_t, std::uint64_t length);
TAVRIK_API std::uint64_t BinaryStreamGetPosition(Object* stream, std::int32_t);
TAVRIK_API void BinaryStreamSetPosition(Object* stream, std::int32_t, std::uint64_t position);

// Numbers: see <tavrik/stream_access.h>.

// Up to `count` bytes as they are, as many as there are. The encoding labels them; nil means UTF-8.
TAVRIK_API String BinaryStreamRead(Object* stream, std::int32_t count, Object* encoding);
TAVRIK_API void BinaryStreamWrite(Object* stream, const String& bytes);
// A length byte and as many bytes. A longer text is cut behind its last whole character.
TAVRIK_API String BinaryStreamReadPString(Object* stream, Object* encoding);
TAVRIK_API void BinaryStreamWritePString(Object* stream, const String& text);

}  // namespace tavrik
