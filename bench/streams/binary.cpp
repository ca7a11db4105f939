// Numbers through a stream, one after the other, from a file and into it, beside the same with the peers.
#include "bench/streams/files.h"
#include "data/binary_stream.h"
#include "data/memory_block.h"
#include "data/text_encoding.h"

#include <QDataStream>
#include <QFile>
#include <benchmark/benchmark.h>

#include <fstream>

namespace tavrik::bench {
namespace {

constexpr std::int64_t kNumbers = std::int64_t{1} << 20;

const std::string& numbers_file() {
    static const std::string path = new_file("numbers", std::string(kNumbers * 4, '\x17'));
    return path;
}

// Counts each number as one iteration.
template <class Begin, class Step>
void for_each_number(benchmark::State& state, Begin begin, Step step) {
    std::int64_t left = 0;
    for (auto _ : state) {
        if (left-- == 0) {
            begin();
            left = kNumbers - 1;
        }
        step();
    }
}

void stream_read_int32(benchmark::State& state) {
    const Ref<BinaryStream> stream = open_stream<BinaryStream>(numbers_file(), O_RDONLY);
    stream->set_LittleEndian(true);
    for_each_number(
        state, [&] { stream->set_Position(0); }, [&] { benchmark::DoNotOptimize(stream->ReadInt32()); });
}
BENCHMARK(stream_read_int32);

void stream_write_int32(benchmark::State& state) {
    const Ref<BinaryStream> stream = open_stream<BinaryStream>(numbers_file(), O_RDWR);
    stream->set_LittleEndian(true);
    for_each_number(
        state, [&] { stream->set_Position(0); }, [&] { stream->WriteInt32(4); });
}
BENCHMARK(stream_write_int32);

void qdatastream_read_int32(benchmark::State& state) {
    QFile file(QString::fromStdString(numbers_file()));
    file.open(QIODevice::ReadOnly);
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    for_each_number(
        state, [&] { file.seek(0); },
        [&] {
            qint32 value = 0;
            stream >> value;
            benchmark::DoNotOptimize(value);
        });
}
BENCHMARK(qdatastream_read_int32);

void qdatastream_write_int32(benchmark::State& state) {
    QFile file(QString::fromStdString(numbers_file()));
    file.open(QIODevice::ReadWrite);
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    for_each_number(
        state, [&] { file.seek(0); }, [&] { stream << qint32{4}; });
}
BENCHMARK(qdatastream_write_int32);

void fstream_read_int32(benchmark::State& state) {
    std::ifstream stream(numbers_file(), std::ios::binary);
    for_each_number(
        state, [&] { stream.seekg(0); },
        [&] {
            std::int32_t value = 0;
            stream.read(reinterpret_cast<char*>(&value), sizeof value);
            benchmark::DoNotOptimize(value);
        });
}
BENCHMARK(fstream_read_int32);

void fstream_write_int32(benchmark::State& state) {
    std::fstream stream(numbers_file(), std::ios::binary | std::ios::in | std::ios::out);
    for_each_number(
        state, [&] { stream.seekp(0); },
        [&] {
            const std::int32_t value = 4;
            stream.write(reinterpret_cast<const char*>(&value), sizeof value);
        });
}
BENCHMARK(fstream_write_int32);

}  // namespace
}  // namespace tavrik::bench
