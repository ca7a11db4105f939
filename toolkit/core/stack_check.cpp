#include "toolkit/core/stack_memory.h"

#include <tavrik/exception.h>

#include <pthread.h>

#include <algorithm>
#include <cstdint>

namespace tavrik {

constinit thread_local std::uintptr_t runtime_stack_limit = UINTPTR_MAX;

namespace {

// What must be left for raising, unwinding and the code of the system's libraries, which checks nothing.
constexpr std::uintptr_t kReserve = std::uintptr_t{256} * 1024;

#if defined(__APPLE__)
std::uintptr_t find_stack_limit() {
    const pthread_t self = pthread_self();
    const auto top = reinterpret_cast<std::uintptr_t>(pthread_get_stackaddr_np(self));
    const std::uintptr_t size = pthread_get_stacksize_np(self);
    return core::stack_limit(top - size, size);
}
#else
std::uintptr_t find_stack_limit() {
    pthread_attr_t attributes;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) return 0;
    void* bottom = nullptr;
    std::size_t size = 0;
    const bool known = pthread_attr_getstack(&attributes, &bottom, &size) == 0;
    pthread_attr_destroy(&attributes);
    if (!known) return 0;
    return core::stack_limit(reinterpret_cast<std::uintptr_t>(bottom), size);
}
#endif

}  // namespace

std::uintptr_t core::stack_limit(std::uintptr_t bottom, std::size_t size) {
    return bottom + std::min<std::uintptr_t>(kReserve, size / 4);
}

void RuntimeStackCheck() {
    const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    if (runtime_stack_limit == UINTPTR_MAX) runtime_stack_limit = find_stack_limit();
    if (here >= runtime_stack_limit) return;

    // The reserve is there to be used by the raise itself.
    const std::uintptr_t limit = std::exchange(runtime_stack_limit, 0);
    struct Restore {
        std::uintptr_t limit;
        ~Restore() { runtime_stack_limit = limit; }
    } const restore{limit};
    RuntimeRaise("StackOverflowException", "the stack has run short");
}

}  // namespace tavrik
