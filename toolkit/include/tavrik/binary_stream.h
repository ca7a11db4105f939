#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

namespace tavrik {

// What LastErrorCode tells. A failure stays until the stream ends; the end of the data only until the position is set.
enum class StreamError : std::int32_t {
    kNone = 0,
    kEndOfData = 1,
    kReadFailed = 3,
    kWriteFailed = 5,
    kNoRoom = 7,
    kNotOpen = 9,
    kReadOnly = 11,
};

TAVRIK_API void BinaryStreamInitializer(Object* stream);
// Writes what is buffered, and closes.
TAVRIK_API void BinaryStreamDestructor(Object* stream);
TAVRIK_API void BinaryStreamClose(Object* stream);
TAVRIK_API void BinaryStreamFlush(Object* stream);
TAVRIK_API bool BinaryStreamEOF(Object* stream);
TAVRIK_API std::int32_t BinaryStreamLastErrorGetter(Object* stream, std::int32_t);
TAVRIK_API std::uint64_t BinaryStreamGetLength(Object* stream, std::int32_t);
TAVRIK_API void BinaryStreamSetLength(Object* stream, std::int32_t, std::uint64_t length);
TAVRIK_API std::uint64_t BinaryStreamGetPosition(Object* stream, std::int32_t);
TAVRIK_API void BinaryStreamSetPosition(Object* stream, std::int32_t, std::uint64_t position);

// A value is read and written in the byte order that the stream's LittleEndian names. One that isn't whole before the
// end of the data reads as 0, leaves the position and sets kEndOfData.
TAVRIK_API std::int32_t BinaryStreamReadByte(Object* stream);   // 0 to 255
TAVRIK_API std::int32_t BinaryStreamReadShort(Object* stream);  // -32768 to 32767
TAVRIK_API std::int32_t BinaryStreamReadLong(Object* stream);
TAVRIK_API std::int8_t BinaryStreamReadInt8(Object* stream);
TAVRIK_API std::int16_t BinaryStreamReadInt16(Object* stream);
TAVRIK_API std::int64_t BinaryStreamReadInt64(Object* stream);
TAVRIK_API std::uint8_t BinaryStreamReadUInt8(Object* stream);
TAVRIK_API std::uint16_t BinaryStreamReadUInt16(Object* stream);
TAVRIK_API std::uint32_t BinaryStreamReadUInt32(Object* stream);
TAVRIK_API std::uint64_t BinaryStreamReadUInt64(Object* stream);
TAVRIK_API double BinaryStreamReadFloat(Object* stream);
TAVRIK_API double BinaryStreamReadDouble(Object* stream);
TAVRIK_API Currency BinaryStreamReadCurrency(Object* stream);
TAVRIK_API bool BinaryStreamReadBoolean(Object* stream);  // one byte; 0 is false

// Writes go to the file at the position, in place; one past the end extends it.
TAVRIK_API void BinaryStreamWriteByte(Object* stream, std::int32_t value);
TAVRIK_API void BinaryStreamWriteShort(Object* stream, std::int32_t value);
TAVRIK_API void BinaryStreamWriteLong(Object* stream, std::int32_t value);
TAVRIK_API void BinaryStreamWriteInt8(Object* stream, std::int8_t value);
TAVRIK_API void BinaryStreamWriteInt16(Object* stream, std::int16_t value);
TAVRIK_API void BinaryStreamWriteInt64(Object* stream, std::int64_t value);
TAVRIK_API void BinaryStreamWriteUInt8(Object* stream, std::uint8_t value);
TAVRIK_API void BinaryStreamWriteUInt16(Object* stream, std::uint16_t value);
TAVRIK_API void BinaryStreamWriteUInt32(Object* stream, std::uint32_t value);
TAVRIK_API void BinaryStreamWriteUInt64(Object* stream, std::uint64_t value);
TAVRIK_API void BinaryStreamWriteFloat(Object* stream, double value);
TAVRIK_API void BinaryStreamWriteDouble(Object* stream, double value);
TAVRIK_API void BinaryStreamWriteCurrency(Object* stream, Currency value);
TAVRIK_API void BinaryStreamWriteBoolean(Object* stream, bool value);

// Up to `count` bytes, as many as there are. The encoding labels the text; nil means UTF-8.
TAVRIK_API String BinaryStreamRead(Object* stream, std::int32_t count, Object* encoding);
TAVRIK_API void BinaryStreamWrite(Object* stream, const String& bytes);

}  // namespace tavrik
