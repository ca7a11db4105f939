#include "toolkit/core/memory_block.h"

#include "toolkit/core/reflection.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>

namespace tavrik {
namespace {

using core::block_of;

void check_size(std::int32_t size) {
    if (size >= 0) return;
    RuntimeRaise("OutOfBoundsException", "a memory block can't have a size of " + std::to_string(size));
}

[[noreturn]] void raise_no_memory(std::uint64_t size) {
    RuntimeRaise("OutOfMemoryException", "no memory for a block of " + std::to_string(size) + " bytes");
}

// Lets go of what the block has, for other bytes.
void set_bytes(MemoryBlockObject& block, std::byte* bytes, std::uint64_t limit, bool is_borrowed) {
    if (!block.is_borrowed) std::free(block.bytes);
    block.bytes = bytes;
    block.limit = limit;
    block.is_borrowed = is_borrowed;
}

void set_new_bytes(MemoryBlockObject& block, std::uint64_t size) {
    if (size > INT32_MAX) raise_no_memory(size);
    std::byte* bytes = nullptr;
    if (size > 0) {
        bytes = static_cast<std::byte*>(std::calloc(size, 1));
        if (bytes == nullptr) raise_no_memory(size);
    }
    set_bytes(block, bytes, size, false);
}

void copy(std::byte* to, std::string_view from) {
    if (!from.empty()) std::memcpy(to, from.data(), from.size());
}

// A new block of the bytes of both, with the byte order of another.
Ref<Object> joined(const MemoryBlockObject& like, std::string_view front, std::string_view back) {
    static ClassRecord* const record = core::need_class("MemoryBlock");
    auto block = static_ref<MemoryBlockObject>(RuntimeNewObject(record));
    block->mLittleEndian = like.mLittleEndian;
    set_new_bytes(*block.get(), std::uint64_t{front.size()} + back.size());
    copy(block->bytes, front);
    copy(block->bytes + front.size(), back);
    return block;
}

std::uint64_t not_below_0(std::int32_t number) { return static_cast<std::uint64_t>(std::max(number, 0)); }

std::string_view bytes_between(const MemoryBlockObject& block, std::uint64_t from, std::uint64_t to) {
    const std::uint64_t end = std::min(to, block.limit);
    const std::uint64_t begin = std::min(from, end);
    return begin == end ? std::string_view{}
                        : std::string_view{reinterpret_cast<const char*>(block.bytes) + begin, end - begin};
}

// All bytes whose number is known.
std::string_view known_bytes(const MemoryBlockObject& block) {
    return core::size_is_known(block) ? bytes_between(block, 0, block.limit) : std::string_view{};
}

std::uint64_t known_size(const MemoryBlockObject& block) {
    if (core::size_is_known(block)) return block.limit;
    RuntimeRaise("OutOfBoundsException", "the end of a memory block of unknown size can't be found");
}

template <class T>
std::int32_t order_of(T a, T b) {
    return std::less<T>{}(a, b) ? -1 : std::less<T>{}(b, a);
}

}  // namespace

void raise_outside_of_block(Object* object, std::int32_t offset, std::uint64_t width) {
    const MemoryBlockObject& block = block_of(object);
    const std::string size = core::size_is_known(block) ? std::to_string(block.limit) + " bytes" : "unknown size";
    RuntimeRaise("OutOfBoundsException", std::to_string(width) + " bytes at offset " + std::to_string(offset) +
                                             " don't lie in a memory block of " + size);
}

void MemoryBlockInitializer(Object* block) {
    block_of(block).mLittleEndian = std::endian::native == std::endian::little;
}
void MemoryBlockFinalizer(Object* block) { set_bytes(block_of(block), nullptr, 0, false); }

void memoryBlockNewConstructor(Object* block, std::int32_t size) {
    check_size(size);
    set_new_bytes(block_of(block), static_cast<std::uint64_t>(size));
}

std::int32_t memoryBlockGetSize(Object* object, std::int32_t) {
    const MemoryBlockObject& block = block_of(object);
    return core::size_is_known(block) ? static_cast<std::int32_t>(block.limit) : 0;
}

void memoryBlockSetSize(Object* object, std::int32_t, std::int32_t size) {
    MemoryBlockObject& block = block_of(object);
    check_size(size);
    const auto limit = static_cast<std::uint64_t>(size);
    if (block.is_borrowed) {
        block.limit = limit == 0 ? kUnknownLimit : limit;
        return;
    }
    if (limit == 0) return set_bytes(block, nullptr, 0, false);

    auto* const bytes = static_cast<std::byte*>(std::realloc(block.bytes, limit));
    if (bytes == nullptr) raise_no_memory(limit);
    if (limit > block.limit) std::memset(bytes + block.limit, 0, limit - block.limit);
    block.bytes = bytes;
    block.limit = limit;
}

String MemoryBlockToStringOperator(Object* block) { return String(known_bytes(block_of(block))); }

void MemoryBlockFromStringOperator(Object* object, const String& bytes) {
    MemoryBlockObject& block = block_of(object);
    set_new_bytes(block, bytes.view().size());
    copy(block.bytes, bytes.view());
}

Ref<Object> MemoryBlockAddOperator(Object* object, Object* other) {
    const MemoryBlockObject& block = block_of(object);
    return joined(block, known_bytes(block), known_bytes(block_of(other)));
}

std::int32_t MemoryBlockCompareOperator(Object* object, Object* other) {
    const MemoryBlockObject& a = block_of(object);
    if (other == nullptr) return 1;
    const MemoryBlockObject& b = block_of(other);
    if (!core::size_is_known(a) || !core::size_is_known(b)) return order_of(a.bytes, b.bytes);
    return order_of(known_bytes(a), known_bytes(b));
}

void* memoryBlockGetPtr(Object* block) { return block_of(block).bytes; }

void ConvertPtrToMemoryBlock(Object* object, void* address) {
    MemoryBlockObject& block = block_of(object);
    if (address == nullptr) return set_bytes(block, nullptr, 0, false);
    set_bytes(block, static_cast<std::byte*>(address), kUnknownLimit, true);
}

Ref<Object> MemoryBlockLeftB(Object* block, std::int32_t count) { return MemoryBlockMidB3(block, 0, count); }

Ref<Object> MemoryBlockMidB3(Object* object, std::int32_t offset, std::int32_t count) {
    const MemoryBlockObject& block = block_of(object);
    const std::uint64_t from = not_below_0(offset);
    return joined(block, bytes_between(block, from, from + not_below_0(count)), {});
}

Ref<Object> MemoryBlockMidB2(Object* object, std::int32_t offset) {
    const MemoryBlockObject& block = block_of(object);
    return joined(block, bytes_between(block, not_below_0(offset), known_size(block)), {});
}

Ref<Object> MemoryBlockRightB(Object* object, std::int32_t count) {
    const MemoryBlockObject& block = block_of(object);
    const std::uint64_t size = known_size(block);
    return joined(block, bytes_between(block, size - std::min(size, not_below_0(count)), size), {});
}

}  // namespace tavrik
