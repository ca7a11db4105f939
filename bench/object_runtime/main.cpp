#include <tavrik/runtime.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string_view>
#include <thread>

namespace {

// The standard library counts with plain instructions until the process has its first thread, which a program with
// windows has before it shows one.
constexpr std::string_view kSingleThreaded = "--single-threaded";

bool take_argument(std::string_view argument, int& count, char** values) {
    char** const end = std::remove(values + 1, values + count, argument);
    const bool given = end != values + count;
    count = static_cast<int>(end - values);
    return given;
}

}  // namespace

int main(int count, char** values) {
    if (!take_argument(kSingleThreaded, count, values)) std::thread([] {}).join();

    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) return 2;
    tavrik::RuntimeInit();
    benchmark::RunSpecifiedBenchmarks();
    return tavrik::RuntimeExit();
}
