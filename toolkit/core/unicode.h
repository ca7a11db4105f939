#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

// Characters in UTF-8 and UTF-16. What is no valid sequence becomes U+FFFD.
namespace tavrik::core {

inline constexpr char32_t kReplacement = 0xFFFD;
inline constexpr std::string_view kReplacementText = "\xEF\xBF\xBD";

// Whether a number is that of a character in Unicode.
constexpr bool is_code_point(std::uint32_t number) {
    return number < 0xD800 || (number >= 0xE000 && number <= 0x10FFFF);
}

constexpr bool is_high_surrogate(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
constexpr bool is_low_surrogate(char32_t c) { return c >= 0xDC00 && c < 0xE000; }
constexpr char32_t from_surrogates(char32_t high, char32_t low) {
    return 0x10000 + ((high - 0xD800) << 10 | (low - 0xDC00));
}

constexpr std::uint32_t byte_at(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

// What stands at the front of some bytes: a character, kReplacement for what is none, or nothing (length 0) because
// the sequence is cut.
struct FrontCharacter {
    char32_t character;
    std::size_t length;
};

// Of at least one byte. What isn't UTF-8 is passed over as far as it could have become a character.
FrontCharacter take_utf8(std::string_view bytes);
void append_utf8(std::string& text, char32_t code_point);
// Appends the low byte of each.
void append_bytes(std::string& to, std::initializer_list<std::uint32_t> bytes);

std::size_t count_utf16(std::string_view utf8) noexcept;
// Writes that many units.
void write_utf16(std::string_view utf8, char16_t* units) noexcept;
std::string utf8_of(std::u16string_view units);

}  // namespace tavrik::core
