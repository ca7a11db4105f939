#include "toolkit/core/memory_block.h"
#include "toolkit/core/memory_stores.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace tavrik::core {
namespace {

constexpr std::uint64_t kLargest = std::numeric_limits<std::int32_t>::max();

// A block whose size nobody knows has no bytes for a stream.
std::span<char> bytes_in(Object* object) {
    const MemoryBlockObject& block = block_of(object);
    if (!size_is_known(block)) return {};
    return {reinterpret_cast<char*>(block.bytes), static_cast<std::size_t>(block.limit)};
}

}  // namespace

MemoryBlockStore::MemoryBlockStore(Object* block)
    : ByteStore("the memory block", true), block_(Ref<Object>::hold(block)) {
    if (block == nullptr) RaiseNilObjectException();
}

std::size_t MemoryBlockStore::read(std::uint64_t position, std::span<char> into, int& error) {
    error = 0;
    const std::span<char> all = bytes_in(block_.object());
    const auto rest = all.subspan(std::min<std::uint64_t>(position, all.size()));
    const auto there = rest.first(std::min(rest.size(), into.size()));
    std::ranges::copy(there, into.begin());
    return there.size();
}

int MemoryBlockStore::write(std::uint64_t position, std::string_view from) {
    if (from.size() > kLargest || position > kLargest - from.size()) return EFBIG;
    const std::uint64_t end = position + from.size();
    if (end > bytes_in(block_.object()).size()) {
        if (const int error = set_length(end)) return error;
    }
    std::ranges::copy(from, bytes_in(block_.object()).begin() + static_cast<std::ptrdiff_t>(position));
    return 0;
}

std::uint64_t MemoryBlockStore::length(int& error) {
    error = 0;
    return bytes_in(block_.object()).size();
}

// Bytes that belong to others can't grow.
int MemoryBlockStore::set_length(std::uint64_t length) {
    if (length > kLargest) return EFBIG;
    const bool is_borrowed = block_of(block_.object()).is_borrowed;
    if (is_borrowed && (length == 0 || length > bytes_in(block_.object()).size())) return ENOSPC;
    memoryBlockSetSize(block_.object(), 0, static_cast<std::int32_t>(length));
    return 0;
}

}  // namespace tavrik::core
