#include "data/thread.h"
#include "runtime/exceptions.h"

#include <tavrik/runtime.h>

#include <benchmark/benchmark.h>

int main(int count, char** values) {
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) return 2;
    tavrik::RuntimeInit();
    tavrik::ThreadEndException::__Lookup();
    tavrik::Thread::__Lookup();
    benchmark::RunSpecifiedBenchmarks();
    return tavrik::RuntimeExit();
}
