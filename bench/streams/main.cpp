#include "data/binary_stream.h"
#include "data/memory_block.h"
#include "data/text_encoding.h"
#include "data/text_input_stream.h"
#include "runtime/exceptions.h"

#include <tavrik/runtime.h>

#include <benchmark/benchmark.h>

int main(int count, char** values) {
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) return 2;
    tavrik::RuntimeInit();
    tavrik::OutOfBoundsException::__ctblinit();
    tavrik::MemoryBlock::__ctblinit();
    tavrik::BinaryStream::__ctblinit();
    tavrik::TextInputStream::__ctblinit();
    benchmark::RunSpecifiedBenchmarks();
    return tavrik::RuntimeExit();
}
