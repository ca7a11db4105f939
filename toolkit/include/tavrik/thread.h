#pragma once

#include <tavrik/object.h>

namespace tavrik {

// What State tells.
enum class ThreadState : std::int32_t {
    kRunning = 0,     // it has the turn, or waits for one
    kWaiting = 1,     // for the main thread to do something for it, such as to show a dialog
    kSuspended = 2,   // until Resume
    kSleeping = 3,    // until its time
    kNotRunning = 4,  // not started yet, or ended
};

TAVRIK_API void ThreadInitializer(Object* thread);
// Starts it: its "Run" event is raised on a stack of its own, at its first turn. It is held until it has ended, and can
// be run again then. Raises ThreadAlreadyRunningException and OutOfMemoryException.
TAVRIK_API void threadRun(Object* thread);
// No turns until Resume. A sleep goes on meanwhile.
TAVRIK_API void ThreadSuspend(Object* thread);
// Ends a suspension, and a sleep that may end early.
TAVRIK_API void ThreadResume(Object* thread);
// No turns for so long; `wake_early` says that Resume may end it. Up to 0 it is the end of the turn.
TAVRIK_API void ThreadSleep(Object* thread, std::int32_t milliseconds, bool wake_early);
// Raises ThreadEndException in the thread, at its next turn, or at once if it is the current one. Ignored if it isn't
// running.
TAVRIK_API void ThreadKill(Object* thread);

// In bytes, at least 64 KiB; 0 stands for the default. Counts from the next Run. Below 0 raises OutOfBoundsException.
TAVRIK_API std::int32_t ThreadGetStackSize(Object* thread, std::int32_t);
TAVRIK_API void ThreadSetStackSize(Object* thread, std::int32_t, std::int32_t bytes);
// From 1 on, in the order in which the objects were made.
TAVRIK_API std::int32_t ThreadGetID(Object* thread, std::int32_t);
// From 1 to 10, 5 at first: how many turns it gets in relation to others. Others raise OutOfBoundsException.
TAVRIK_API std::int32_t ThreadGetPriority(Object* thread, std::int32_t);
TAVRIK_API void ThreadSetPriority(Object* thread, std::int32_t, std::int32_t priority);
TAVRIK_API std::int32_t ThreadGetState(Object* thread, std::int32_t);

// The thread whose code runs, or nil for the main one.
TAVRIK_API Ref<Object> TAVRIKGetCurrentThread(Object* app, std::int32_t);
// Act on the thread whose code runs, the main one included.
TAVRIK_API void YieldToNextThread(Object* app);
TAVRIK_API void AppSleepCurrentThread(Object* app, std::int32_t milliseconds);

}  // namespace tavrik
