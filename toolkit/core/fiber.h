#pragma once

#include "toolkit/core/context.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/release.h"
#include "toolkit/core/sanitizer.h"
#include "toolkit/core/stack_memory.h"

#include <tavrik/object.h>

#include <array>
#include <cstdint>
#include <optional>

namespace tavrik::core {

// A stack, and all that belongs to what runs on it: the processor's registers, the exceptions that C++ is handling, and
// the core's own notes.
class Fiber {
public:
    // The stack that the process began on.
    Fiber() = default;
    // Begins at `entry`, which calls arrive() first and doesn't return. Raises OutOfMemoryException.
    Fiber(std::size_t stack_bytes, void (*entry)());
    Fiber(const Fiber&) = delete;
    Fiber& operator=(const Fiber&) = delete;

    enum class Leaving { kForNow, kForGood };

    // Called on `from`: goes on where `to` was left, and returns when something goes on with `from`.
    static void go(Fiber& from, Fiber& to, Leaving leaving = Leaving::kForNow);
    void arrive();

private:
    // What the C++ library keeps for each thread of the system, as its ABI lays it out: the exceptions that are caught,
    // and how many are on their way.
    using ExceptionGlobals = std::array<std::uintptr_t, 2>;

    struct Notes {
        ExceptionGlobals exceptions{};
        Releases releases;
        Object* release_exception = nullptr;
        EventScope* event = nullptr;
        std::uintptr_t stack_limit = UINTPTR_MAX;
    };

    void take_notes();
    void apply_notes() const;

    std::optional<StackMemory> stack_;
    Context context_ = nullptr;
    Notes notes_;
    sanitizer::StackNotes sanitizer_;
};

}  // namespace tavrik::core
