// Text streams over any bytes in any encoding: the first byte chooses the encoding, the second how much is read at
// once. However the text is read, it comes whole, and the reads end where the bytes end.
#include "data/binary_stream.h"
#include "data/text_encoding.h"
#include "data/text_input_stream.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>

namespace tavrik {
namespace {

// The first leaves it to the mark.
constexpr const char* kNames[] = {
    "", "UTF-8", "UTF-16", "UTF-16LE", "UTF-32", "UTF-32LE", "US-ASCII", "ISO-8859-1", "Shift_JIS", "GB18030",
};

void expect(bool holds) {
    if (!holds) std::abort();
}

void build_classes() {
    static const bool done = [] {
        TextEncoding::__ctblinit();
        BinaryStream::__ctblinit();
        TextInputStream::__ctblinit();
        return true;
    }();
    static_cast<void>(done);
}

template <class Read>
std::string all_of(TextInputStream& stream, std::size_t size, Read read) {
    std::string text;
    stream.set_PositionB(0);
    for (std::size_t reads = 0; !stream.EOF_(); ++reads) {
        expect(reads <= size);
        text += read().view();
    }
    expect(stream.PositionB() == size);
    return text;
}

void check(const char* name, std::string_view bytes, std::int32_t most) {
    std::FILE* const file = std::tmpfile();
    expect(file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size());
    std::fflush(file);
    const Ref<TextInputStream> stream = make<TextInputStream>();
    stream->Constructor(::dup(::fileno(file)), kHandleOfDescriptor);
    std::fclose(file);
    if (name[0] != '\0') stream->set_Encoding(encoding_named(name));

    stream->set_PositionB(0);
    const String whole = stream->ReadAll(nullptr);
    expect(stream->EOF_() && stream->PositionB() == bytes.size());
    expect(all_of(*stream.get(), bytes.size(), [&] { return stream->Read(most, nullptr); }) == whole.view());
    all_of(*stream.get(), bytes.size(), [&] { return stream->ReadLine(nullptr); });
}

}  // namespace
}  // namespace tavrik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    tavrik::build_classes();
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 2, size - 2);
    tavrik::check(tavrik::kNames[data[0] % std::size(tavrik::kNames)], bytes, 1 + data[1]);
    return 0;
}
