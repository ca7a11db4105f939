#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// How the processor leaves one stack and goes on with another.
namespace tavrik::core {

// A stack that was left: the place on it under which the registers lie that a call preserves.
using Context = void*;

// A stack on which `entry` will begin. It must not return, and nothing thrown may leave it.
Context make_context(std::span<std::byte> stack, void (*entry)());

// Leaves the running stack, noting in `left` where, and goes on where `entered` was left. No system call, where the
// processor is known.
extern "C" void tavrik_switch_context(Context* left, Context entered) asm("tavrik_switch_context");

// The address at or below the top of the stack that calls may start from.
inline std::byte* aligned_top(std::span<std::byte> stack) {
    auto* const top = stack.data() + stack.size();
    return top - reinterpret_cast<std::uintptr_t>(top) % 16;
}

}  // namespace tavrik::core

// How an assembler's function is told to stay inside the library.
#if defined(__APPLE__)
#define TAVRIK_HIDDEN_FUNCTION(name) ".private_extern " #name "\n"
#else
#define TAVRIK_HIDDEN_FUNCTION(name) ".hidden " #name "\n.type " #name ", %function\n"
#endif
