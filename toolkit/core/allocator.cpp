#include "toolkit/core/allocator.h"

#include <tavrik/exception.h>

#include <array>
#include <cstdlib>

namespace tavrik::core {
namespace {

// The sanitizers see a use after the release only if every block goes back to the system's allocator.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kPooled = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool kPooled = false;
#else
constexpr bool kPooled = true;
#endif
#else
constexpr bool kPooled = true;
#endif

constexpr std::size_t kGrain = 16;
constexpr std::size_t kLargestPooled = 512;
constexpr std::size_t kChunk = std::size_t{32} * 1024;

struct FreeBlock {
    FreeBlock* next;
};

std::array<FreeBlock*, kLargestPooled / kGrain + 1> free_blocks{};

void* allocate_from_system(std::size_t size) {
    void* const block = std::malloc(size);
    if (block == nullptr) RuntimeRaise("OutOfMemoryException", "no memory for an object");
    return block;
}

// Cuts a chunk into blocks, which are in use from now on until the process ends.
[[gnu::noinline]] void* refill(std::size_t grains) {
    const std::size_t size = grains * kGrain;
    auto* const chunk = static_cast<std::byte*>(allocate_from_system(kChunk));
    for (std::size_t at = kChunk / size - 1; at > 0; --at) {
        auto* const block = reinterpret_cast<FreeBlock*>(chunk + at * size);
        block->next = free_blocks[grains];
        free_blocks[grains] = block;
    }
    return chunk;
}

}  // namespace

void* allocate_block(std::size_t size) {
    if (!kPooled || size > kLargestPooled) return allocate_from_system(size);
    const std::size_t grains = (size + kGrain - 1) / kGrain;
    FreeBlock* const block = free_blocks[grains];
    if (block == nullptr) return refill(grains);
    free_blocks[grains] = block->next;
    return block;
}

void free_block(void* block, std::size_t size) noexcept {
    if (!kPooled || size > kLargestPooled) return std::free(block);
    const std::size_t grains = (size + kGrain - 1) / kGrain;
    auto* const freed = static_cast<FreeBlock*>(block);
    freed->next = free_blocks[grains];
    free_blocks[grains] = freed;
}

}  // namespace tavrik::core
