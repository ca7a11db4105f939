#pragma once

#include <tavrik/object.h>
#include <tavrik/values.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

// The numbers in a memory block. They are read and written in loops, so that the call through a slot is all the
// distance there is. No block here is nil: who calls through a slot has looked.
namespace tavrik {

// What the class layer declares for MemoryBlock is this room. Every access lies within the first `limit` bytes.
struct MemoryBlockObject : Object {
    std::byte* bytes;
    std::uint64_t limit;
    bool mLittleEndian;
    bool is_borrowed;  // the bytes belong to others
};

// The limit of a block over bytes whose number nobody told: every offset counts as inside.
inline constexpr std::uint64_t kUnknownLimit = 0x80000000U;

[[noreturn, gnu::cold]] TAVRIK_API void raise_outside_of_block(Object* block, std::int32_t offset, std::uint64_t width);

// Where `width` bytes at an offset lie. Raises OutOfBoundsException if one of them lies outside; an offset below 0
// counts as one behind every limit.
inline std::byte* memory_at(Object* block, std::int32_t offset, std::uint64_t width) {
    const auto* const room = static_cast<MemoryBlockObject*>(block);
    const std::uint64_t from = static_cast<std::uint32_t>(offset);
    if (from + width > room->limit) [[unlikely]]
        raise_outside_of_block(block, offset, width);
    return room->bytes + from;
}

namespace detail {

inline std::uint8_t swapped(std::uint8_t word) { return word; }
inline std::uint16_t swapped(std::uint16_t word) { return __builtin_bswap16(word); }
inline std::uint32_t swapped(std::uint32_t word) { return __builtin_bswap32(word); }
inline std::uint64_t swapped(std::uint64_t word) { return __builtin_bswap64(word); }

template <class T>
using WordOf = std::conditional_t<sizeof(T) == 1, std::uint8_t,
                                  std::conditional_t<sizeof(T) == 2, std::uint16_t,
                                                     std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>>>;

template <class Word>
Word in_order_of(const Object* block, Word word) {
    const bool is_little = static_cast<const MemoryBlockObject*>(block)->mLittleEndian;
    if (is_little == (std::endian::native == std::endian::little)) [[likely]]
        return word;
    return swapped(word);
}

template <class T>
T read_memory(Object* block, std::int32_t offset) {
    WordOf<T> word{};
    std::memcpy(&word, memory_at(block, offset, sizeof word), sizeof word);
    return std::bit_cast<T>(in_order_of(block, word));
}

template <class T>
void write_memory(Object* block, std::int32_t offset, T value) {
    std::byte* const place = memory_at(block, offset, sizeof(T));
    const auto word = in_order_of(block, std::bit_cast<WordOf<T>>(value));
    std::memcpy(place, &word, sizeof word);
}

}  // namespace detail

// clang-format off
// Values at a byte offset, in the byte order that LittleEndian names. All raise OutOfBoundsException, before they
// change anything, if one of their bytes lies outside of the block.
inline std::int32_t memoryGetByte(Object* block, std::int32_t offset) { return detail::read_memory<std::uint8_t>(block, offset); }
inline std::int32_t memoryGetShort(Object* block, std::int32_t offset) { return detail::read_memory<std::int16_t>(block, offset); }
inline std::int32_t memoryGetUShort(Object* block, std::int32_t offset) { return detail::read_memory<std::uint16_t>(block, offset); }
inline std::int32_t memoryGetLong(Object* block, std::int32_t offset) { return detail::read_memory<std::int32_t>(block, offset); }
inline std::int8_t memoryGetInt8(Object* block, std::int32_t offset) { return detail::read_memory<std::int8_t>(block, offset); }
inline std::int16_t memoryGetInt16(Object* block, std::int32_t offset) { return detail::read_memory<std::int16_t>(block, offset); }
inline std::int64_t memoryGetInt64(Object* block, std::int32_t offset) { return detail::read_memory<std::int64_t>(block, offset); }
inline std::uint8_t memoryGetUInt8(Object* block, std::int32_t offset) { return detail::read_memory<std::uint8_t>(block, offset); }
inline std::uint16_t memoryGetUInt16(Object* block, std::int32_t offset) { return detail::read_memory<std::uint16_t>(block, offset); }
inline std::uint32_t memoryGetUInt32(Object* block, std::int32_t offset) { return detail::read_memory<std::uint32_t>(block, offset); }
inline std::uint64_t memoryGetUInt64(Object* block, std::int32_t offset) { return detail::read_memory<std::uint64_t>(block, offset); }
inline double memoryGetSingle(Object* block, std::int32_t offset) { return double{detail::read_memory<float>(block, offset)}; }
inline double memoryGetDouble(Object* block, std::int32_t offset) { return detail::read_memory<double>(block, offset); }
inline Currency memoryGetCurrency(Object* block, std::int32_t offset) { return detail::read_memory<Currency>(block, offset); }
// Bit 0 of the byte.
inline bool memoryGetBoolean(Object* block, std::int32_t offset) { return (memoryGetUInt8(block, offset) & 1U) != 0; }

// Byte and Short keep the low 8 and 16 bits. Short is written for UShort too.
inline void memorySetByte(Object* block, std::int32_t offset, std::int32_t value) { detail::write_memory(block, offset, static_cast<std::uint8_t>(value)); }
inline void memorySetShort(Object* block, std::int32_t offset, std::int32_t value) { detail::write_memory(block, offset, static_cast<std::int16_t>(value)); }
inline void memorySetLong(Object* block, std::int32_t offset, std::int32_t value) { detail::write_memory(block, offset, value); }
inline void memorySetInt8(Object* block, std::int32_t offset, std::int8_t value) { detail::write_memory(block, offset, value); }
inline void memorySetInt16(Object* block, std::int32_t offset, std::int16_t value) { detail::write_memory(block, offset, value); }
inline void memorySetInt64(Object* block, std::int32_t offset, std::int64_t value) { detail::write_memory(block, offset, value); }
inline void memorySetUInt8(Object* block, std::int32_t offset, std::uint8_t value) { detail::write_memory(block, offset, value); }
inline void memorySetUInt16(Object* block, std::int32_t offset, std::uint16_t value) { detail::write_memory(block, offset, value); }
inline void memorySetUInt32(Object* block, std::int32_t offset, std::uint32_t value) { detail::write_memory(block, offset, value); }
inline void memorySetUInt64(Object* block, std::int32_t offset, std::uint64_t value) { detail::write_memory(block, offset, value); }
inline void memorySetSingle(Object* block, std::int32_t offset, double value) { detail::write_memory(block, offset, static_cast<float>(value)); }
inline void memorySetDouble(Object* block, std::int32_t offset, double value) { detail::write_memory(block, offset, value); }
inline void memorySetCurrency(Object* block, std::int32_t offset, Currency value) { detail::write_memory(block, offset, value); }
inline void memorySetBoolean(Object* block, std::int32_t offset, bool value) { memorySetUInt8(block, offset, value ? 1 : 0); }
// clang-format on

}  // namespace tavrik
