// For processors that have no code of their own here: the system's switch, which also saves the signal mask.
#include "toolkit/core/context.h"

#if !defined(__x86_64__) && !defined(__aarch64__)

#include <ucontext.h>

#include <new>

namespace tavrik::core {

Context make_context(std::span<std::byte> stack, void (*entry)()) {
    // What is left lies on the stack that was left; that of a new stack lies at its top.
    std::byte* const top = aligned_top(stack) - (sizeof(ucontext_t) + 15) / 16 * 16;
    auto* const begun = new (top) ucontext_t;
    ::getcontext(begun);
    begun->uc_stack.ss_sp = stack.data();
    begun->uc_stack.ss_size = static_cast<std::size_t>(top - stack.data());
    begun->uc_link = nullptr;
    ::makecontext(begun, entry, 0);
    return begun;
}

void tavrik_switch_context(Context* left, Context entered) {
    ucontext_t here;
    *left = &here;
    ::swapcontext(&here, static_cast<ucontext_t*>(entered));
}

}  // namespace tavrik::core

#endif
