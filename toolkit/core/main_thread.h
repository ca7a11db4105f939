#pragma once

namespace tavrik::core {

// Whether this thread of the system is the program's first one.
extern constinit thread_local bool is_main_thread __attribute__((tls_model("initial-exec")));

[[noreturn]] void throw_wrong_thread(const char* call);

// Throws WrongThread, which names the call, anywhere but on the program's first thread.
inline void need_main_thread(const char* call = __builtin_FUNCTION()) {
    if (!is_main_thread) [[unlikely]]
        throw_wrong_thread(call);
}

}  // namespace tavrik::core
