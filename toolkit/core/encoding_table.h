#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

// Which encodings there are.
namespace tavrik::core {

// Whose code converts. kUtf16 and kUtf32 are read in the order that a mark at their start names, and big-endian without
// one; they are written big-endian without a mark.
enum class Coding : std::uint8_t {
    kIconv,
    kAscii,
    kLatin1,
    kUtf8,
    kUtf16,
    kUtf16Big,
    kUtf16Little,
    kUtf32,
    kUtf32Big,
    kUtf32Little,
};

// All forms of Unicode have this base.
inline constexpr std::uint32_t kUnicodeBase = 0x0100;

struct EncodingRow {
    std::uint32_t code;
    const char* internet_name;
    const char* other_names = "";  // separated by spaces; iconv may know it by one of them
    Coding coding = Coding::kIconv;
};

// Only those that can be converted here are found; else the result is nil. A name that the table doesn't have but iconv
// has gets a number of its own, which holds until the process ends.
const EncodingRow* find_encoding(std::uint32_t code);
const EncodingRow* find_encoding(std::string_view internet_name);

struct CloseIconv {
    void operator()(void* converter) const noexcept;
};
using Iconv = std::unique_ptr<void, CloseIconv>;

// Converters between an encoding and UTF-8, nil where iconv has none.
Iconv open_from(const EncodingRow& encoding);
Iconv open_to(const EncodingRow& encoding);

}  // namespace tavrik::core
