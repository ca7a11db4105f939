#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

// Memory for many plain elements.
namespace tavrik::core {

struct FreeBlock {
    void operator()(void* block) const noexcept { std::free(block); }
};
template <class T>
using Block = std::unique_ptr<T[], FreeBlock>;

// Elements that begin with a line of the processor's cache, so that none whose size divides a line's lies in two.
template <class T>
class LineBlock {
    static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= alignof(std::max_align_t));

public:
    T* data() const noexcept { return reinterpret_cast<T*>(block_.get() + offset_); }
    T& operator[](std::size_t index) const noexcept { return data()[index]; }

    // Room for `capacity` elements, of which the first `used` are kept. Throws std::bad_alloc, and has changed nothing
    // then.
    void resize(std::size_t used, std::size_t capacity) {
        // Large blocks are moved by the system without a copy.
        void* const moved = std::realloc(block_.get(), capacity * sizeof(T) + kLine);
        if (moved == nullptr) throw std::bad_alloc();
        static_cast<void>(block_.release());
        block_.reset(static_cast<std::byte*>(moved));

        const std::size_t offset = kLine - reinterpret_cast<std::uintptr_t>(moved) % kLine;
        if (offset != offset_ && used != 0) {
            std::memmove(block_.get() + offset, block_.get() + offset_, used * sizeof(T));
        }
        offset_ = offset;
    }

private:
    static constexpr std::size_t kLine = 64;

    Block<std::byte> block_;
    std::size_t offset_ = 0;
};

}  // namespace tavrik::core
