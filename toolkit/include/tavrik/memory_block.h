#pragma once

#include <tavrik/memory_access.h>
#include <tavrik/object.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

#include <cstdint>

namespace tavrik {

TAVRIK_API void MemoryBlockInitializer(Object* block);
TAVRIK_API void MemoryBlockFinalizer(Object* block);
// Makes the block one of `size` zero bytes. Raises OutOfBoundsException for a size below 0 and OutOfMemoryException,
// and then leaves it as it was.
TAVRIK_API void memoryBlockNewConstructor(Object* block, std::int32_t size);
// 0 where the size isn't known.
TAVRIK_API std::int32_t memoryBlockGetSize(Object* block, std::int32_t);
// Keeps the contents; new bytes are 0. Raises as the constructor does. A block over bytes of others is told how many
// there are, 0 for unknown.
TAVRIK_API void memoryBlockSetSize(Object* block, std::int32_t, std::int32_t size);

// Values at a byte offset, as in <tavrik/memory_access.h>: they raise OutOfBoundsException before anything changes.

// A pixel of 16 (five bits for each colour), 24 (three bytes: red, green, blue) or 32 bits (the highest byte is 0).
// Other numbers of bits raise UnsupportedFormatException.
TAVRIK_API Color memoryGetColor(Object* block, std::int32_t offset, std::int32_t bits);
TAVRIK_API void memorySetColor(Object* block, std::int32_t offset, std::int32_t bits, Color color);

// An address, as wide as a pointer and in the machine's byte order: a block over the bytes there, as
// ConvertPtrToMemoryBlock makes it, or nil for no address.
TAVRIK_API Ref<Object> memoryGetPtr(Object* block, std::int32_t offset);
// The address of the first byte of `target`, which isn't held; nil is no address.
TAVRIK_API void memorySetPtr(Object* block, std::int32_t offset, Object* target);

// The bytes as they are, as text of that encoding; nil means UTF-8.
TAVRIK_API String memoryGetString(Object* block, std::int32_t offset, std::int32_t length, Object* encoding);
// Writes exactly `length` bytes: a longer text is cut, a shorter one filled up with zero bytes.
TAVRIK_API void memorySetString(Object* block, std::int32_t offset, std::int32_t length, const String& text);
// A length byte and as many bytes. A longer text is cut behind its last whole character.
TAVRIK_API String memoryGetPString(Object* block, std::int32_t offset);
TAVRIK_API void memorySetPString(Object* block, std::int32_t offset, const String& text);
// Bytes up to a zero byte. Reading ends at the block's end if there is none.
TAVRIK_API String memoryGetCString(Object* block, std::int32_t offset);
TAVRIK_API void memorySetCString(Object* block, std::int32_t offset, const String& text);
// The same in UTF-16, which becomes UTF-8 and back.
TAVRIK_API String memoryGetWString(Object* block, std::int32_t offset);
TAVRIK_API void memorySetWString(Object* block, std::int32_t offset, const String& text);

TAVRIK_API String MemoryBlockToStringOperator(Object* block);
TAVRIK_API void MemoryBlockFromStringOperator(Object* block, const String& bytes);
// A new block of the bytes of both.
TAVRIK_API Ref<Object> MemoryBlockAddOperator(Object* block, Object* other);
// -1, 0 or 1, by bytes and then by size. Blocks of unknown size go by their addresses. nil is less than any block.
TAVRIK_API std::int32_t MemoryBlockCompareOperator(Object* block, Object* other);
// The address of the bytes, which holds until the size changes or the block ends.
TAVRIK_API void* memoryBlockGetPtr(Object* block);
// Makes the block one over bytes that it doesn't own. Its size isn't known, so no access to it is checked.
TAVRIK_API void ConvertPtrToMemoryBlock(Object* block, void* address);

// New blocks of some of the bytes, fewer where there are fewer. Offsets and numbers below 0 mean 0.
TAVRIK_API Ref<Object> MemoryBlockLeftB(Object* block, std::int32_t count);
TAVRIK_API Ref<Object> MemoryBlockMidB3(Object* block, std::int32_t offset, std::int32_t count);
// These two raise OutOfBoundsException where the size isn't known.
TAVRIK_API Ref<Object> MemoryBlockMidB2(Object* block, std::int32_t offset);
TAVRIK_API Ref<Object> MemoryBlockRightB(Object* block, std::int32_t count);

}  // namespace tavrik
