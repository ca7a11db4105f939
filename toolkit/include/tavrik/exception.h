#pragma once

#include <tavrik/array.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

#include <string_view>

namespace tavrik {

// The one C++ type that is thrown: it owns the exception object on its way from frame to frame.
struct TAVRIK_API RaisedException {
    Ref<Object> exception;
};

// Raises `exception`, and notes where it was raised if that isn't noted yet. nil raises NilObjectException.
[[noreturn]] TAVRIK_API void RuntimeRaiseException(Object* exception);
// Raises on what a catch point has caught; the note of where it was raised stays.
[[noreturn]] TAVRIK_API void RuntimeReraiseException(Object* exception);
// Raises a new exception of the class with that name, with a message.
[[noreturn]] TAVRIK_API void RuntimeRaise(std::string_view class_name, std::string_view message);

// Last stop of an exception that nothing caught: the person is told. Returns.
TAVRIK_API void RuntimeUnhandledException(Object* exception);

// Raises StackOverflowException when less than a fixed reserve of the running thread's stack is left.
TAVRIK_API void RuntimeStackCheck();

// The lowest address that a frame of this thread may lie at. It starts as the highest address, so that the first
// check of a thread goes to RuntimeStackCheck, which finds the true one.
extern TAVRIK_API constinit thread_local std::uintptr_t runtime_stack_limit __attribute__((tls_model("initial-exec")));

inline void check_stack() {
    if (reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) < runtime_stack_limit) RuntimeStackCheck();
}

// What left a Destructor or __Exit since it was last asked for, or nil. It waits for the end of the innermost frame,
// or of the event, because a release can't raise by itself.
TAVRIK_API Ref<Object> RuntimeTakeReleaseException() noexcept;
extern TAVRIK_API Object* runtime_release_exception;

// Forwarded to by RuntimeException.
TAVRIK_API void RuntimeExceptionInitializer(Object* exception);
TAVRIK_API void RuntimeExceptionFinalizer(Object* exception);
// One line for each frame, the innermost first; empty before the exception is raised.
TAVRIK_API Ref<ArrayOf<String>> RuntimeExceptionStack(Object* exception);

}  // namespace tavrik
