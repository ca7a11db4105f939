#pragma once

#include <cstddef>
#include <span>

#if defined(__SANITIZE_ADDRESS__)
#define TAVRIK_ADDRESS_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TAVRIK_ADDRESS_SANITIZER 1
#endif
#endif

#if defined(TAVRIK_ADDRESS_SANITIZER)
#include <sanitizer/asan_interface.h>
#include <sanitizer/common_interface_defs.h>
#endif

// Whether AddressSanitizer watches this program, and what it is told about stacks.
namespace tavrik::core::sanitizer {

#if defined(TAVRIK_ADDRESS_SANITIZER)
inline constexpr bool kWatches = true;
#else
inline constexpr bool kWatches = false;
#endif

// What it keeps with a stack that was left, and the bounds of that stack.
struct StackNotes {
    void* fake_stack = nullptr;
    const void* bottom = nullptr;
    std::size_t size = 0;
};

#if defined(TAVRIK_ADDRESS_SANITIZER)

inline void leave(StackNotes& left, const StackNotes& entered, bool for_good) {
    __sanitizer_start_switch_fiber(for_good ? nullptr : &left.fake_stack, entered.bottom, entered.size);
}
inline void arrive(const StackNotes& entered, StackNotes& left) {
    __sanitizer_finish_switch_fiber(entered.fake_stack, &left.bottom, &left.size);
}
inline void forget_frames(std::span<std::byte> stack) { __asan_unpoison_memory_region(stack.data(), stack.size()); }

#else

inline void leave(StackNotes&, const StackNotes&, bool) {}
inline void arrive(const StackNotes&, StackNotes&) {}
inline void forget_frames(std::span<std::byte>) {}

#endif

}  // namespace tavrik::core::sanitizer
