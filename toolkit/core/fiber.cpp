#include "toolkit/core/fiber.h"

#include <tavrik/exception.h>

#include <cxxabi.h>

#include <cstring>

namespace tavrik::core {
namespace {

Fiber* last_left = nullptr;

}  // namespace

Fiber::Fiber(std::size_t stack_bytes, void (*entry)()) : stack_(std::in_place, stack_bytes) {
    const std::span<std::byte> stack = stack_->usable();
    context_ = make_context(stack, entry);
    notes_.stack_limit = stack_limit(reinterpret_cast<std::uintptr_t>(stack.data()), stack.size());
    sanitizer_.bottom = stack.data();
    sanitizer_.size = stack.size();
}

void Fiber::go(Fiber& from, Fiber& to, Leaving leaving) {
    from.take_notes();
    to.apply_notes();
    last_left = &from;
    sanitizer::leave(from.sanitizer_, to.sanitizer_, leaving == Leaving::kForGood);
    tavrik_switch_context(&from.context_, to.context_);
    from.arrive();
}

void Fiber::arrive() { sanitizer::arrive(sanitizer_, last_left->sanitizer_); }

void Fiber::take_notes() {
    std::memcpy(notes_.exceptions.data(), abi::__cxa_get_globals(), sizeof(ExceptionGlobals));
    notes_.releases = releases;
    notes_.release_exception = runtime_release_exception;
    notes_.event = EventScope::innermost();
    notes_.stack_limit = runtime_stack_limit;
}

void Fiber::apply_notes() const {
    std::memcpy(static_cast<void*>(abi::__cxa_get_globals()), notes_.exceptions.data(), sizeof(ExceptionGlobals));
    releases = notes_.releases;
    runtime_release_exception = notes_.release_exception;
    EventScope::go_on_in(notes_.event);
    runtime_stack_limit = notes_.stack_limit;
}

}  // namespace tavrik::core
