// Prints how long programs take to start, as medians in nanoseconds:
//   startup window PROGRAM PEER   to the first painted window, a line for each
//   startup prompt PROGRAM        to the first output on a pipe
#include "bench/startup/program.h"
#include "bench/startup/screen.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <string_view>
#include <vector>

namespace {

using tavrik::bench::Program;
using tavrik::bench::Screen;
using Clock = std::chrono::steady_clock;
using Times = std::vector<std::chrono::nanoseconds>;

constexpr int kWindowRounds = 101;
constexpr int kPromptRounds = 51;

template <class Wait>
std::chrono::nanoseconds time_to_start(const char* path, Wait wait) {
    const Clock::time_point start = Clock::now();
    const Program program(path);
    wait(program);
    return Clock::now() - start;
}

void print_median(Times times) {
    const auto middle = times.begin() + std::ssize(times) / 2;
    std::nth_element(times.begin(), middle, times.end());
    std::printf("%lld\n", static_cast<long long>(middle->count()));
}

// The two take turns, so that what else happens on the machine meets both.
void compare_windows(const char* path, const char* peer) {
    Screen screen;
    const auto until_painted = [&screen](const Program&) { screen.wait_for_painted_window(); };
    Times ours;
    Times theirs;
    for (int round = 0; round < kWindowRounds; ++round) {
        ours.push_back(time_to_start(path, until_painted));
        theirs.push_back(time_to_start(peer, until_painted));
    }
    print_median(std::move(ours));
    print_median(std::move(theirs));
}

void measure_prompt(const char* path) {
    Times times;
    for (int round = 0; round < kPromptRounds; ++round) {
        times.push_back(time_to_start(path, [](const Program& program) { program.wait_for_output(); }));
    }
    print_median(std::move(times));
}

}  // namespace

int main(int count, char** values) try {
    const std::string_view what = count > 1 ? values[1] : "";
    if (what == "window" && count == 4) {
        compare_windows(values[2], values[3]);
    } else if (what == "prompt" && count == 3) {
        measure_prompt(values[2]);
    } else {
        std::fputs("usage: startup window PROGRAM PEER | startup prompt PROGRAM\n", stderr);
        return 2;
    }
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "startup: %s\n", error.what());
    return 1;
}
