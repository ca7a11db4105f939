#include "toolkit/core/unicode.h"

namespace tavrik::core {
namespace {

char32_t take_character(std::string_view& utf8) {
    const FrontCharacter taken = take_utf8(utf8);
    // A sequence that is cut is one that doesn't go on.
    utf8.remove_prefix(taken.length == 0 ? utf8.size() : taken.length);
    return taken.length == 0 ? kReplacement : taken.character;
}

char32_t take_character(std::u16string_view& units) {
    const char32_t first = units.front();
    units.remove_prefix(1);
    if (is_low_surrogate(first)) return kReplacement;
    if (!is_high_surrogate(first)) return first;
    if (units.empty() || !is_low_surrogate(units.front())) return kReplacement;
    const char32_t second = units.front();
    units.remove_prefix(1);
    return from_surrogates(first, second);
}

}  // namespace

FrontCharacter take_utf8(std::string_view bytes) {
    const std::uint32_t lead = byte_at(bytes, 0);
    std::uint32_t least = 0x80;
    std::uint32_t most = 0xBF;
    std::size_t length = 0;
    char32_t character = 0;
    if (lead < 0x80) return {lead, 1};
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        character = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        character = lead & 0x0F;
        if (lead == 0xE0) least = 0xA0;
        if (lead == 0xED) most = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        character = lead & 0x07;
        if (lead == 0xF0) least = 0x90;
        if (lead == 0xF4) most = 0x8F;
    } else {
        return {kReplacement, 1};
    }
    for (std::size_t at = 1; at < length; ++at) {
        if (at == bytes.size()) return {0, 0};
        const std::uint32_t next = byte_at(bytes, at);
        if (next < least || next > most) return {kReplacement, at};
        character = character << 6 | (next & 0x3F);
        least = 0x80;
        most = 0xBF;
    }
    return {character, length};
}

void append_bytes(std::string& to, std::initializer_list<std::uint32_t> bytes) {
    for (const std::uint32_t byte : bytes) to += static_cast<char>(static_cast<unsigned char>(byte));
}

void append_utf8(std::string& text, char32_t code_point) {
    const std::uint32_t c = code_point;
    if (c < 0x80) return append_bytes(text, {c});
    if (c < 0x800) return append_bytes(text, {0xC0 | c >> 6, 0x80 | (c & 0x3F)});
    if (c < 0x10000) return append_bytes(text, {0xE0 | c >> 12, 0x80 | (c >> 6 & 0x3F), 0x80 | (c & 0x3F)});
    append_bytes(text, {0xF0 | c >> 18, 0x80 | (c >> 12 & 0x3F), 0x80 | (c >> 6 & 0x3F), 0x80 | (c & 0x3F)});
}

std::size_t count_utf16(std::string_view utf8) noexcept {
    std::size_t count = 0;
    for (; !utf8.empty(); ++count) {
        if (take_character(utf8) >= 0x10000) ++count;
    }
    return count;
}

void write_utf16(std::string_view utf8, char16_t* units) noexcept {
    while (!utf8.empty()) {
        const char32_t character = take_character(utf8);
        if (character < 0x10000) {
            *units++ = static_cast<char16_t>(character);
            continue;
        }
        *units++ = static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
        *units++ = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    }
}

std::string utf8_of(std::u16string_view units) {
    std::string text;
    text.reserve(units.size());
    while (!units.empty()) append_utf8(text, take_character(units));
    return text;
}

}  // namespace tavrik::core
