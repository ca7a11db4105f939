#include "bench/startup/program.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>
#include <system_error>

namespace tavrik::bench {
namespace {

[[noreturn]] void fail(int error, const std::string& what) {
    throw std::system_error(error, std::generic_category(), what);
}

Pipe make_pipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) fail(errno, "a pipe to a program");
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

pid_t spawn(const char* path, const Descriptor& input, const Descriptor& output) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input.number(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output.number(), STDOUT_FILENO);
    std::string name = path;
    char* const arguments[] = {name.data(), nullptr};
    pid_t process = 0;
    const int error = posix_spawn(&process, path, &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) fail(error, path);
    return process;
}

}  // namespace

Descriptor::~Descriptor() {
    if (number_ >= 0) close(number_);
}

Program::Program(const char* path) : Program(path, make_pipe(), make_pipe()) {}

Program::Program(const char* path, Pipe input, Pipe output)
    : input_(std::move(input.write_end)),
      output_(std::move(output.read_end)),
      process_(spawn(path, input.read_end, output.write_end)) {}

Program::~Program() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

void Program::wait_for_output() const {
    std::array<char, 4096> block;
    const ssize_t size = read(output_.number(), block.data(), block.size());
    if (size < 0) fail(errno, "the output of a program");
    if (size == 0) fail(EPIPE, "a program ended before its first output");
}

}  // namespace tavrik::bench
