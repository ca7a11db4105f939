#include "toolkit/core/utf8.h"

namespace tavrik::core {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool is_high_surrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_low_surrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// What may follow a first byte: how many bytes, and the range of the first of them, which leaves out overlong forms,
// surrogates and what lies beyond the last character.
struct Lead {
    int followers = -1;  // no first byte
    unsigned char least = 0x80;
    unsigned char most = 0xBF;
    char32_t bits = 0;
};

Lead lead_of(unsigned char byte) {
    if (byte < 0x80) return {.followers = 0, .bits = byte};
    if (byte < 0xC2) return {};
    if (byte < 0xE0) return {.followers = 1, .bits = byte & 0x1Fu};
    if (byte == 0xE0) return {.followers = 2, .least = 0xA0, .bits = 0};
    if (byte == 0xED) return {.followers = 2, .most = 0x9F, .bits = 0xD};
    if (byte < 0xF0) return {.followers = 2, .bits = byte & 0xFu};
    if (byte == 0xF0) return {.followers = 3, .least = 0x90, .bits = 0};
    if (byte < 0xF4) return {.followers = 3, .bits = byte & 0x7u};
    if (byte == 0xF4) return {.followers = 3, .most = 0x8F, .bits = 4};
    return {};
}

// Takes one character off the front, or the longest part of one that a valid sequence could begin with.
char32_t take_character(std::string_view& utf8) {
    Lead lead = lead_of(static_cast<unsigned char>(utf8.front()));
    utf8.remove_prefix(1);
    if (lead.followers < 0) return kReplacement;
    char32_t character = lead.bits;
    for (; lead.followers > 0; --lead.followers) {
        if (utf8.empty()) return kReplacement;
        const auto byte = static_cast<unsigned char>(utf8.front());
        if (byte < lead.least || byte > lead.most) return kReplacement;
        utf8.remove_prefix(1);
        character = character << 6 | (byte & 0x3Fu);
        lead.least = 0x80;
        lead.most = 0xBF;
    }
    return character;
}

char32_t take_character(std::u16string_view& units) {
    const char32_t first = units.front();
    units.remove_prefix(1);
    if (is_low_surrogate(first)) return kReplacement;
    if (!is_high_surrogate(first)) return first;
    if (units.empty() || !is_low_surrogate(units.front())) return kReplacement;
    const char32_t second = units.front();
    units.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

void append_utf8(std::string& text, char32_t character) {
    const auto put = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto put_follower = [&](int shift) { put(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) return put(character);
    if (character < 0x800) {
        put(0xC0 | character >> 6);
        return put_follower(0);
    }
    if (character < 0x10000) {
        put(0xE0 | character >> 12);
    } else {
        put(0xF0 | character >> 18);
        put_follower(12);
    }
    put_follower(6);
    put_follower(0);
}

}  // namespace

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
