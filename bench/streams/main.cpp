#include "data/memory_block.h"
#include "runtime/exceptions.h"

#include <tavrik/runtime.h>

#include <benchmark/benchmark.h>

int main(int count, char** values) {
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) return 2;
    tavrik::RuntimeInit();
    tavrik::OutOfBoundsException::__ctblinit();
    tavrik::MemoryBlock::__ctblinit();
    benchmark::RunSpecifiedBenchmarks();
    return tavrik::RuntimeExit();
}
