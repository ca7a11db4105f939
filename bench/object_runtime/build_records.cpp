// Prints the nanoseconds that a fresh process takes to build the records of all of the tool's classes.
#include "maptool/initialize.h"

#include <tavrik/runtime.h>

#include <chrono>
#include <cstdio>

int main() {
    using Clock = std::chrono::steady_clock;

    tavrik::RuntimeInit();
    const Clock::time_point start = Clock::now();
    tavrik::initialize();
    const std::chrono::nanoseconds taken = Clock::now() - start;
    std::printf("%lld\n", static_cast<long long>(taken.count()));
    tavrik::finalize();
    return tavrik::RuntimeExit();
}
