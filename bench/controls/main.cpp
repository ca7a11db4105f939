#include "bench/controls/front.h"

#include <benchmark/benchmark.h>

int main(int count, char** values) {
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) return 2;
    tavrik::bench::start();
    benchmark::RunSpecifiedBenchmarks();
    return tavrik::bench::finish();
}
