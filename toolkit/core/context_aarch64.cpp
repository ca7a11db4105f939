#include "toolkit/core/context.h"

#if defined(__aarch64__)

#include <new>

extern "C" void tavrik_context_begin() asm("tavrik_context_begin");

// A context: x19 to x30, the low halves of v8 to v15, and the floating-point control register. The first frame of a
// stack has no caller: whoever walks the frames stops there.
asm(".text\n"
    ".globl tavrik_switch_context\n" TAVRIK_HIDDEN_FUNCTION(tavrik_switch_context)
    ".p2align 4\n"
    "tavrik_switch_context:\n"
    "  sub sp, sp, #176\n"
    "  stp x19, x20, [sp]\n"
    "  stp x21, x22, [sp, #16]\n"
    "  stp x23, x24, [sp, #32]\n"
    "  stp x25, x26, [sp, #48]\n"
    "  stp x27, x28, [sp, #64]\n"
    "  stp x29, x30, [sp, #80]\n"
    "  stp d8, d9, [sp, #96]\n"
    "  stp d10, d11, [sp, #112]\n"
    "  stp d12, d13, [sp, #128]\n"
    "  stp d14, d15, [sp, #144]\n"
    "  mrs x9, fpcr\n"
    "  str x9, [sp, #160]\n"
    "  mov x9, sp\n"
    "  str x9, [x0]\n"
    "  mov sp, x1\n"
    "  ldp x19, x20, [sp]\n"
    "  ldp x21, x22, [sp, #16]\n"
    "  ldp x23, x24, [sp, #32]\n"
    "  ldp x25, x26, [sp, #48]\n"
    "  ldp x27, x28, [sp, #64]\n"
    "  ldp x29, x30, [sp, #80]\n"
    "  ldp d8, d9, [sp, #96]\n"
    "  ldp d10, d11, [sp, #112]\n"
    "  ldp d12, d13, [sp, #128]\n"
    "  ldp d14, d15, [sp, #144]\n"
    "  ldr x9, [sp, #160]\n"
    "  msr fpcr, x9\n"
    "  add sp, sp, #176\n"
    "  ret\n"
    ".globl tavrik_context_begin\n" TAVRIK_HIDDEN_FUNCTION(tavrik_context_begin)
    ".p2align 4\n"
    "tavrik_context_begin:\n"
    "  .cfi_startproc\n"
    "  .cfi_undefined x30\n"
    "  blr x19\n"
    "  brk #0\n"
    "  .cfi_endproc\n");

namespace tavrik::core {
namespace {

struct Saved {
    void (*x19)() = nullptr;
    void* x20_to_x29[10] = {};
    void (*x30)() = nullptr;
    double d8_to_d15[8] = {};
    std::uint64_t fpcr = 0;
    std::uint64_t unused = 0;
};
static_assert(sizeof(Saved) == 176);

}  // namespace

Context make_context(std::span<std::byte> stack, void (*entry)()) {
    auto* const saved = new (aligned_top(stack) - sizeof(Saved)) Saved;
    asm("mrs %0, fpcr" : "=r"(saved->fpcr));
    saved->x19 = entry;
    saved->x30 = &tavrik_context_begin;
    return saved;
}

}  // namespace tavrik::core

#endif
