#include "toolkit/core/context.h"

#if defined(__x86_64__)

#include <new>

extern "C" void tavrik_context_begin() asm("tavrik_context_begin");

// A context: the control words of both floating-point units, the six registers, the address to go on at. The first
// frame of a stack has no caller: whoever walks the frames stops there.
asm(".text\n"
    ".globl tavrik_switch_context\n" TAVRIK_HIDDEN_FUNCTION(tavrik_switch_context)
    ".p2align 4\n"
    "tavrik_switch_context:\n"
    "  pushq %rbp\n"
    "  pushq %rbx\n"
    "  pushq %r12\n"
    "  pushq %r13\n"
    "  pushq %r14\n"
    "  pushq %r15\n"
    "  subq $8, %rsp\n"
    "  stmxcsr (%rsp)\n"
    "  fnstcw 4(%rsp)\n"
    "  movq %rsp, (%rdi)\n"
    "  movq %rsi, %rsp\n"
    "  ldmxcsr (%rsp)\n"
    "  fldcw 4(%rsp)\n"
    "  addq $8, %rsp\n"
    "  popq %r15\n"
    "  popq %r14\n"
    "  popq %r13\n"
    "  popq %r12\n"
    "  popq %rbx\n"
    "  popq %rbp\n"
    "  popq %rcx\n"
    "  jmpq *%rcx\n"
    ".globl tavrik_context_begin\n" TAVRIK_HIDDEN_FUNCTION(tavrik_context_begin)
    ".p2align 4\n"
    "tavrik_context_begin:\n"
    "  .cfi_startproc\n"
    "  .cfi_undefined rip\n"
    "  callq *%rbx\n"
    "  ud2\n"
    "  .cfi_endproc\n");

namespace tavrik::core {
namespace {

struct Saved {
    std::uint32_t mxcsr = 0;
    std::uint16_t x87_control = 0;
    void* r15 = nullptr;
    void* r14 = nullptr;
    void* r13 = nullptr;
    void* r12 = nullptr;
    void (*rbx)() = nullptr;
    void* rbp = nullptr;
    void (*go_on_at)() = nullptr;
};
static_assert(sizeof(Saved) == 64);

}  // namespace

Context make_context(std::span<std::byte> stack, void (*entry)()) {
    auto* const saved = new (aligned_top(stack) - sizeof(Saved)) Saved;
    asm("stmxcsr %0" : "=m"(saved->mxcsr));
    asm("fnstcw %0" : "=m"(saved->x87_control));
    saved->rbx = entry;
    saved->go_on_at = &tavrik_context_begin;
    return saved;
}

}  // namespace tavrik::core

#endif
