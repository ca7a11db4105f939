// The decoder and the encoder: any bytes, in any encoding, cut anywhere. The first byte chooses the encoding and the
// second where to cut; the rest is the text.
#include "toolkit/core/encoding.h"

#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>

namespace tavrik::core {
namespace {

constexpr const char* kNames[] = {
    "UTF-8",      "UTF-16",    "UTF-16BE",     "UTF-16LE",  "UTF-32",  "UTF-32BE", "UTF-32LE", "US-ASCII",
    "ISO-8859-1", "macintosh", "windows-1252", "Shift_JIS", "GB18030", "EUC-JP",   "UTF-7",
};

void expect(bool holds) {
    if (!holds) std::abort();
}

template <class Piece, class Converter>
std::string convert(Converter converter, Piece piece, std::string_view from, std::size_t cut) {
    std::string result;
    (converter.*piece)(from.substr(0, cut), result);
    (converter.*piece)(from.substr(cut), result);
    converter.finish(result);
    return result;
}

void check(const EncodingRow& encoding, std::string_view bytes, std::size_t cut) {
    const std::string text = decode_all(encoding, bytes);
    expect(decode_all(*find_encoding("UTF-8"), text) == text);
    expect(convert(Decoder(encoding), &Decoder::decode, bytes, cut) == text);

    const std::string encoded = encode_all(encoding, bytes);
    expect(convert(Encoder(encoding), &Encoder::encode, bytes, cut) == encoded);
}

}  // namespace
}  // namespace tavrik::core

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const auto* const encoding =
        tavrik::core::find_encoding(tavrik::core::kNames[data[0] % std::size(tavrik::core::kNames)]);
    if (encoding == nullptr) return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 2, size - 2);
    tavrik::core::check(*encoding, bytes, data[1] % (bytes.size() + 1));
    return 0;
}
