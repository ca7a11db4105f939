#pragma once

#include <tavrik/object.h>
#include <tavrik/stream_access.h>
#include <tavrik/stream_error.h>
#include <tavrik/string.h>

#include <cstddef>
#include <cstdint>

namespace tavrik {

inline constexpr std::size_t kTextInputRoom = std::size_t{16} * 1024;

// What the class layer declares for TextInputStream begins with this room: the buffer is part of the object.
struct TextInputStreamObject : Object {
    StreamWindow window;
    char buffer[kTextInputRoom];
};

// What the class layer declares for TextOutputStream begins with this room.
struct TextOutputStreamObject : Object {
    StreamWindow window;
};

TAVRIK_API void TextInputStreamInitializer(Object* stream);
TAVRIK_API void TextInputStreamDestructor(Object* stream);
// As BinaryStreamHandleCtor and BinaryStreamHandleGetter.
TAVRIK_API void TextInputStreamHandleCtor(Object* stream, std::int32_t handle, std::int32_t type);
TAVRIK_API std::int32_t TextInputStreamHandleGetter(Object* stream, std::int32_t type);

// All three give UTF-8. The bytes are in the given encoding, else in that of the stream's Encoding, else in that which
// a mark at the start names, else in UTF-8. The mark is no part of the text, and what is no character becomes U+FFFD.
// An encoding that this system can't convert raises UnsupportedFormatException. Up to `count` bytes, and at least one
// character; one that the last byte cuts comes with the next read.
TAVRIK_API String TextInputStreamRead(Object* stream, std::int32_t count, Object* encoding);
// Up to a CR, an LF, or both, which is read too, or up to the end.
TAVRIK_API String TextInputStreamReadLine(Object* stream, Object* encoding);
TAVRIK_API String TextInputStreamReadAll(Object* stream, Object* encoding);

TAVRIK_API void TextInputStreamClose(Object* stream);
TAVRIK_API bool TextInputStreamEOF(Object* stream);
TAVRIK_API std::int32_t TextInputStreamLastErrorGetter(Object* stream, std::int32_t);
// In bytes from the start: where the text that hasn't been returned yet begins.
TAVRIK_API std::uint64_t TextInputStreamGetPosition(Object* stream, std::int32_t);
TAVRIK_API void TextInputStreamSetPosition(Object* stream, std::int32_t, std::uint64_t position);

TAVRIK_API void TextOutputStreamInitializer(Object* stream);
// Writes what is buffered, and closes.
TAVRIK_API void TextOutputStreamDestructor(Object* stream);
TAVRIK_API void TextOutputStreamHandleCtor(Object* stream, std::int32_t handle, std::int32_t type);
TAVRIK_API std::int32_t TextOutputStreamHandleGetter(Object* stream, std::int32_t type);

// The bytes of the text as they are. A line has the stream's Delimiter behind it.
TAVRIK_API void TextOutputStreamWrite(Object* stream, const String& text);
TAVRIK_API void TextOutputStreamWriteLine(Object* stream, const String& text);
TAVRIK_API void TextOutputStreamFlush(Object* stream);
TAVRIK_API void TextOutputStreamClose(Object* stream);
TAVRIK_API std::int32_t TextOutputStreamLastErrorGetter(Object* stream, std::int32_t);

}  // namespace tavrik
