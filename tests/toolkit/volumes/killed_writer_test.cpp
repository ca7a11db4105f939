#include "tests/support/temporary_folder.h"
#include "tests/toolkit/volumes/model.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <thread>

extern char** environ;

namespace tavrik::test {
namespace {

using volume::Mode;

struct Killed {
    std::size_t changes_told = 0;
    bool was_killed = false;
};

// Lets a writer tell of a number of changes, and kills it a moment later.
Killed kill_a_writer(const std::string& path, unsigned seed, std::size_t changes, std::chrono::microseconds later) {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) return {};
    posix_spawn_file_actions_t actions{};
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    ::posix_spawn_file_actions_addclose(&actions, ends[0]);
    std::string program = VOLUME_WRITER;
    std::string volume = path;
    std::string number = std::to_string(seed);
    std::array<char*, 4> arguments{program.data(), volume.data(), number.data(), nullptr};
    pid_t writer = 0;
    const bool runs = ::posix_spawn(&writer, program.c_str(), &actions, nullptr, arguments.data(), environ) == 0;
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);

    Killed killed;
    char byte = 0;
    while (runs && killed.changes_told < changes && ::read(ends[0], &byte, 1) == 1) ++killed.changes_told;
    std::this_thread::sleep_for(later);
    int status = 0;
    if (runs && ::kill(writer, SIGKILL) == 0 && ::waitpid(writer, &status, 0) == writer)
        killed.was_killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    while (::read(ends[0], &byte, 1) == 1) ++killed.changes_told;
    ::close(ends[0]);
    return killed;
}

TEST(KilledWriter, Leaves_the_last_committed_state) {
    const TemporaryFolder folder;
    const std::string path = folder.file("volume");
    ASSERT_TRUE(open_volume(path, Mode::kCreate).volume);
    std::mt19937 random(20'261);
    Model before;
    for (unsigned round = 0; round < 40; ++round) {
        const Killed killed = kill_a_writer(path, round, 1 + random() % 20, std::chrono::microseconds(random() % 4000));
        ASSERT_TRUE(killed.was_killed) << "round " << round;
        const auto opened = open_volume(path, Mode::kOpen);
        ASSERT_TRUE(opened.volume) << "round " << round << ": " << opened.reason;
        const Model after = everything_in(*opened.volume);

        // The change that was under way may have been committed without being told.
        RandomChanges changes(before, round);
        for (std::size_t i = 0; i < killed.changes_told; ++i) changes.step(nullptr);
        if (changes.model() != after) changes.step(nullptr);
        ASSERT_TRUE(changes.model() == after) << "round " << round << ", " << killed.changes_told << " changes";
        before = after;
    }
    EXPECT_GT(before.size(), 5U);
}

}  // namespace
}  // namespace tavrik::test
