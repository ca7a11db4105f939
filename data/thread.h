#pragma once

#include "runtime/class.h"

#include <tavrik/thread.h>

namespace tavrik {

// Code that runs beside the main thread, by turns: the handler of its "Run" event. The values of State are those of
// ThreadState.
struct Thread : Class<Thread> {
    static const ClassDefinition& definition();

    void Run() { dispatch<&Thread::Run>(this); }
    void Suspend() { dispatch<&Thread::Suspend>(this); }
    void Resume() { dispatch<&Thread::Resume>(this); }
    void Sleep(std::int32_t milliseconds, bool wake_early) { dispatch<&Thread::Sleep>(this, milliseconds, wake_early); }
    void Kill() { dispatch<&Thread::Kill>(this); }
    void __DependencyList() { dispatch<&Thread::__DependencyList>(this); }

    // A new size counts from the next Run.
    std::int32_t StackSize() { return ThreadGetStackSize(this, 0); }
    void set_StackSize(std::int32_t bytes) { ThreadSetStackSize(this, 0, bytes); }
    std::int32_t ThreadID() { return ThreadGetID(this, 0); }
    std::int32_t Priority() { return ThreadGetPriority(this, 0); }
    void set_Priority(std::int32_t priority) { ThreadSetPriority(this, 0, priority); }
    std::int32_t State() { return ThreadGetState(this, 0); }

    struct Events {
        static inline constinit Event<void()> Run;
    };
};

}  // namespace tavrik
