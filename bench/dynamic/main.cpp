#include "maptool/initialize.h"

#include <tavrik/runtime.h>

#include <benchmark/benchmark.h>

int main(int count, char** values) {
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) return 2;
    tavrik::RuntimeInit();
    tavrik::initialize();
    benchmark::RunSpecifiedBenchmarks();
    tavrik::finalize();
    return tavrik::RuntimeExit();
}
