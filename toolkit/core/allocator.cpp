#include "toolkit/core/allocator.h"

#include <tavrik/exception.h>

namespace tavrik::core::pool {

constexpr std::size_t kChunk = std::size_t{32} * 1024;

void* allocate_from_system(std::size_t size) {
    void* const block = std::malloc(size);
    if (block == nullptr) RuntimeRaise("OutOfMemoryException", "no memory for an object");
    return block;
}

// The blocks of a chunk are in use until the process ends. They go out in the order of their addresses, so that what
// is made together lies together.
void* refill(std::size_t grains) {
    const std::size_t size = grains * kGrain;
    auto* const chunk = static_cast<std::byte*>(allocate_from_system(kChunk));
    for (std::size_t at = kChunk / size - 1; at > 0; --at) {
        auto* const block = reinterpret_cast<FreeBlock*>(chunk + at * size);
        block->next = free_blocks[grains];
        free_blocks[grains] = block;
    }
    return chunk;
}

}  // namespace tavrik::core::pool
