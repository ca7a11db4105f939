#include "toolkit/core/launch.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

#ifdef __APPLE__
extern char** environ;
#endif

namespace tavrik::core {
namespace {

// The programs that were started and may still run; what has ended is taken note of, so that the system forgets it.
std::vector<pid_t>& started() {
    static auto* const programs = new std::vector<pid_t>;
    return *programs;
}

void forget_ended() {
    std::erase_if(started(), [](pid_t program) {
        const pid_t ended = ::waitpid(program, nullptr, WNOHANG);
        return ended == program || (ended < 0 && errno == ECHILD);
    });
}

template <class T, int (*Init)(T*), int (*Destroy)(T*)>
struct Settings {
    Settings() { Init(&value); }
    ~Settings() { Destroy(&value); }
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;
    T value{};
};
using Files = Settings<posix_spawn_file_actions_t, posix_spawn_file_actions_init, posix_spawn_file_actions_destroy>;
using Attributes = Settings<posix_spawnattr_t, posix_spawnattr_init, posix_spawnattr_destroy>;

}  // namespace

int start_program(const std::vector<std::string>& words) {
    forget_ended();
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);

    Files files;
    ::posix_spawn_file_actions_addopen(&files.value, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&files.value, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    Attributes attributes;
    sigset_t none;
    sigset_t all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    ::posix_spawnattr_setsigmask(&attributes.value, &none);
    ::posix_spawnattr_setsigdefault(&attributes.value, &all);
    // A group of its own: what interrupts this program doesn't interrupt that one.
    ::posix_spawnattr_setpgroup(&attributes.value, 0);
    ::posix_spawnattr_setflags(&attributes.value,
                               POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    pid_t program = 0;
    const int error =
        ::posix_spawnp(&program, arguments.front(), &files.value, &attributes.value, arguments.data(), environ);
    if (error == 0) started().push_back(program);
    return error;
}

std::vector<std::string> desktop_opener([[maybe_unused]] bool activate) {
#ifdef __APPLE__
    if (!activate) return {"open", "-g"};
    return {"open"};
#else
    return {"xdg-open"};
#endif
}

}  // namespace tavrik::core
