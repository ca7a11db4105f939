#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tavrik::core {

// The memory of a stack, with a page below it that can't be touched. Pages take room once they are used. A few stacks
// that are done with are kept for the next ones.
class StackMemory {
public:
    // Raises OutOfMemoryException.
    explicit StackMemory(std::size_t bytes);
    ~StackMemory();
    StackMemory(const StackMemory&) = delete;
    StackMemory& operator=(const StackMemory&) = delete;

    std::span<std::byte> usable() const { return usable_; }

    // That many bytes, in whole pages.
    static std::size_t whole_pages(std::size_t bytes);

private:
    std::span<std::byte> usable_;
};

// The lowest address that a checked frame may lie at: see RuntimeStackCheck.
std::uintptr_t stack_limit(std::uintptr_t bottom, std::size_t size);

}  // namespace tavrik::core
