#pragma once

#include <cstddef>

// Memory for objects: small sizes come from free lists, since objects come and go in great numbers and on one thread
// at a time.
namespace tavrik::core {

// Raises OutOfMemoryException.
void* allocate_block(std::size_t size);
void free_block(void* block, std::size_t size) noexcept;

}  // namespace tavrik::core
