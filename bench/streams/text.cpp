// A log of 100 MB, line by line and at once, beside the same with the peers.
#include "bench/streams/files.h"
#include "data/text_encoding.h"
#include "data/text_input_stream.h"

#include <QFile>
#include <QTextStream>
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <memory>

namespace tavrik::bench {
namespace {

constexpr std::size_t kLogSize = std::size_t{100} * 1000 * 1000;

const std::string& log_file() {
    static const std::string path = [] {
        std::string text;
        for (int line = 0; text.size() < kLogSize; ++line) {
            text += "2026-11-23 01:20:15 valley.map: tile " + std::to_string(line) + " was drawn in 4 ms\n";
        }
        return new_file("log", text);
    }();
    return path;
}

void read_log_by_lines(benchmark::State& state) {
    for (auto _ : state) {
        const auto stream = open_stream<TextInputStream>(log_file(), O_RDONLY);
        while (!stream->EOF_()) benchmark::DoNotOptimize(stream->ReadLine(nullptr).record());
    }
}
BENCHMARK(read_log_by_lines)->Unit(benchmark::kMillisecond);

void qtextstream_by_lines(benchmark::State& state) {
    const QString path = QString::fromStdString(log_file());
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        QTextStream stream(&file);
        while (!stream.atEnd()) {
            const QString line = stream.readLine();
            benchmark::DoNotOptimize(line.constData());
        }
    }
}
BENCHMARK(qtextstream_by_lines)->Unit(benchmark::kMillisecond);

void read_log_at_once(benchmark::State& state) {
    for (auto _ : state) {
        const auto stream = open_stream<TextInputStream>(log_file(), O_RDONLY);
        benchmark::DoNotOptimize(stream->ReadAll(nullptr).record());
    }
}
BENCHMARK(read_log_at_once)->Unit(benchmark::kMillisecond);

void read_into_memory(benchmark::State& state) {
    const std::string& path = log_file();
    for (auto _ : state) {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        const auto size = static_cast<std::size_t>(::lseek(file, 0, SEEK_END));
        ::lseek(file, 0, SEEK_SET);
        const auto bytes = std::make_unique_for_overwrite<char[]>(size);
        benchmark::DoNotOptimize(::read(file, bytes.get(), size));
        ::close(file);
    }
}
BENCHMARK(read_into_memory)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavrik::bench
