#pragma once

#include <tavrik/memory_access.h>
#include <tavrik/object.h>
#include <tavrik/values.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

// The numbers in a stream. They are read and written in loops, so that one within the stream's buffer is copied here,
// and no stream here is nil: who calls through a slot has looked.
namespace tavrik {

// The part of a stream's buffer that may be read or written next: from the cursor to one of the ends. The other end
// isn't behind the cursor then. All are nil while there is no buffer.
struct StreamWindow {
    char* cursor;
    char* read_end;
    char* write_end;
};

// What the class layer declares for BinaryStream begins with this room.
struct BinaryStreamObject : Object {
    StreamWindow window;
    bool mLittleEndian;
};

// The same beyond the window. Reading tells whether all bytes were there.
TAVRIK_API bool read_behind_window(Object* stream, void* bytes, std::size_t width);
TAVRIK_API void write_behind_window(Object* stream, const void* bytes, std::size_t width);

namespace detail {

template <class Word>
Word in_order_of_stream(const BinaryStreamObject* stream, Word word) {
    return stream->mLittleEndian == (std::endian::native == std::endian::little) ? word : swapped(word);
}

template <class T>
T read_stream(Object* object) {
    auto* const stream = static_cast<BinaryStreamObject*>(object);
    StreamWindow& window = stream->window;
    WordOf<T> word{};
    if (window.read_end - window.cursor >= static_cast<std::ptrdiff_t>(sizeof word)) [[likely]] {
        std::memcpy(&word, window.cursor, sizeof word);
        window.cursor += sizeof word;
    } else if (!read_behind_window(stream, &word, sizeof word)) {
        return T{};
    }
    return std::bit_cast<T>(in_order_of_stream(stream, word));
}

template <class T>
void write_stream(Object* object, T value) {
    auto* const stream = static_cast<BinaryStreamObject*>(object);
    StreamWindow& window = stream->window;
    const auto word = in_order_of_stream(stream, std::bit_cast<WordOf<T>>(value));
    if (window.write_end - window.cursor < static_cast<std::ptrdiff_t>(sizeof word)) [[unlikely]]
        return write_behind_window(stream, &word, sizeof word);
    std::memcpy(window.cursor, &word, sizeof word);
    window.cursor += sizeof word;
}

}  // namespace detail

// clang-format off
// Values in the byte order that LittleEndian names. One that isn't whole before the end of the data reads as 0, leaves
// the position and sets kEndOfData.
inline std::int32_t BinaryStreamReadByte(Object* stream) { return detail::read_stream<std::uint8_t>(stream); }    // 0 to 255
inline std::int32_t BinaryStreamReadShort(Object* stream) { return detail::read_stream<std::int16_t>(stream); }  // -32768 to 32767
inline std::int32_t BinaryStreamReadLong(Object* stream) { return detail::read_stream<std::int32_t>(stream); }
inline std::int8_t BinaryStreamReadInt8(Object* stream) { return detail::read_stream<std::int8_t>(stream); }
inline std::int16_t BinaryStreamReadInt16(Object* stream) { return detail::read_stream<std::int16_t>(stream); }
inline std::int64_t BinaryStreamReadInt64(Object* stream) { return detail::read_stream<std::int64_t>(stream); }
inline std::uint8_t BinaryStreamReadUInt8(Object* stream) { return detail::read_stream<std::uint8_t>(stream); }
inline std::uint16_t BinaryStreamReadUInt16(Object* stream) { return detail::read_stream<std::uint16_t>(stream); }
inline std::uint32_t BinaryStreamReadUInt32(Object* stream) { return detail::read_stream<std::uint32_t>(stream); }
inline std::uint64_t BinaryStreamReadUInt64(Object* stream) { return detail::read_stream<std::uint64_t>(stream); }
inline double BinaryStreamReadFloat(Object* stream) { return double{detail::read_stream<float>(stream)}; }
inline double BinaryStreamReadDouble(Object* stream) { return detail::read_stream<double>(stream); }
inline Currency BinaryStreamReadCurrency(Object* stream) { return detail::read_stream<Currency>(stream); }
inline bool BinaryStreamReadBoolean(Object* stream) { return detail::read_stream<std::uint8_t>(stream) != 0; }  // one byte; 0 is false

// Writes go to the position, in place; one past the end extends the data. Byte and Short keep the low 8 and 16 bits.
inline void BinaryStreamWriteByte(Object* stream, std::int32_t value) { detail::write_stream(stream, static_cast<std::uint8_t>(value)); }
inline void BinaryStreamWriteShort(Object* stream, std::int32_t value) { detail::write_stream(stream, static_cast<std::int16_t>(value)); }
inline void BinaryStreamWriteLong(Object* stream, std::int32_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteInt8(Object* stream, std::int8_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteInt16(Object* stream, std::int16_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteInt64(Object* stream, std::int64_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteUInt8(Object* stream, std::uint8_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteUInt16(Object* stream, std::uint16_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteUInt32(Object* stream, std::uint32_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteUInt64(Object* stream, std::uint64_t value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteFloat(Object* stream, double value) { detail::write_stream(stream, static_cast<float>(value)); }
inline void BinaryStreamWriteDouble(Object* stream, double value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteCurrency(Object* stream, Currency value) { detail::write_stream(stream, value); }
inline void BinaryStreamWriteBoolean(Object* stream, bool value) { detail::write_stream(stream, static_cast<std::uint8_t>(value)); }
// clang-format on

}  // namespace tavrik
