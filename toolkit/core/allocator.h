#pragma once

#include "toolkit/core/sanitizer.h"

#include <array>
#include <cstddef>
#include <cstdlib>

// Memory for objects: small sizes come from free lists, since objects come and go in great numbers and on one thread
// at a time.
namespace tavrik::core {
namespace pool {

// The sanitizer sees a use after the release only if every block goes back to the system's allocator.
inline constexpr bool kUsed = !sanitizer::kWatches;

inline constexpr std::size_t kGrain = 16;
inline constexpr std::size_t kLargest = 512;

struct FreeBlock {
    FreeBlock* next;
};

// By size in grains.
inline std::array<FreeBlock*, kLargest / kGrain + 1> free_blocks{};

inline bool holds(std::size_t size) noexcept { return kUsed && size <= kLargest; }
inline std::size_t grains_of(std::size_t size) noexcept { return (size + kGrain - 1) / kGrain; }

// Cuts new blocks of that size and returns one of them.
void* refill(std::size_t grains);
void* allocate_from_system(std::size_t size);

}  // namespace pool

// Raises OutOfMemoryException.
inline void* allocate_block(std::size_t size) {
    if (!pool::holds(size)) return pool::allocate_from_system(size);
    const std::size_t grains = pool::grains_of(size);
    pool::FreeBlock* const block = pool::free_blocks[grains];
    if (block == nullptr) return pool::refill(grains);
    pool::free_blocks[grains] = block->next;
    return block;
}

inline void free_block(void* block, std::size_t size) noexcept {
    if (!pool::holds(size)) return std::free(block);
    const std::size_t grains = pool::grains_of(size);
    auto* const freed = static_cast<pool::FreeBlock*>(block);
    freed->next = pool::free_blocks[grains];
    pool::free_blocks[grains] = freed;
}

}  // namespace tavrik::core
