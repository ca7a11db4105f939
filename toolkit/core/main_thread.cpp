#include "toolkit/core/main_thread.h"

#include <tavrik/wrong_thread.h>

#include <pthread.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <string>

namespace tavrik::core {

constinit thread_local bool is_main_thread = false;

namespace {

// The library is loaded by the program's first thread, before main().
const pthread_t the_main_thread = [] {
    is_main_thread = true;
    return pthread_self();
}();

std::uint64_t number_of_thread() {
#if defined(__APPLE__)
    std::uint64_t number = 0;
    pthread_threadid_np(nullptr, &number);
    return number;
#else
    return static_cast<std::uint64_t>(gettid());
#endif
}

std::string name_of_thread(pthread_t thread) {
    std::array<char, 64> name{};
    return pthread_getname_np(thread, name.data(), name.size()) == 0 ? name.data() : "";
}

}  // namespace

void throw_wrong_thread(const char* call) {
    std::string text(call);
    text.append(" was called on thread ").append(std::to_string(number_of_thread()));
    // One that nobody has named has the name of the thread that started it.
    const std::string name = name_of_thread(pthread_self());
    if (!name.empty() && name != name_of_thread(the_main_thread)) text.append(" (\"").append(name).append("\")");
    throw WrongThread(text.append(": windows belong to the program's first thread"));
}

}  // namespace tavrik::core
