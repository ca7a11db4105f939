#include "toolkit/core/text.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace tavrik::core {
namespace {

constexpr bool begins_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

// How many of eight bytes begin a character: those of which not exactly the upper of the two highest bits is set.
std::size_t beginnings(const char* bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    const std::uint64_t continuing = word & ~(word << 1) & 0x8080808080808080U;
    return sizeof word - static_cast<std::size_t>(std::popcount(continuing));
}

constexpr char lower(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter; }

}  // namespace

std::size_t count_characters(std::string_view text) noexcept {
    if (text.empty()) return 0;
    const auto begun = static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins_character));
    return begins_character(text.front()) ? begun : begun + 1;
}

std::size_t skip_characters(std::string_view text, std::size_t from, std::size_t count) noexcept {
    if (count == 0 || from >= text.size()) return std::min(from, text.size());
    std::size_t at = from + 1;  // a character begins at `from`
    std::size_t left = count - 1;
    while (text.size() - at >= sizeof(std::uint64_t)) {
        const std::size_t begun = beginnings(text.data() + at);
        if (begun > left) break;
        left -= begun;
        at += sizeof(std::uint64_t);
    }
    for (; at < text.size(); ++at) {
        if (!begins_character(text[at])) continue;
        if (left == 0) return at;
        --left;
    }
    return at;
}

std::string_view countable(std::string_view text) noexcept {
    constexpr std::size_t kMost = 255;
    if (text.size() <= kMost) return text;
    const std::size_t characters = count_characters(text.substr(0, kMost + 1));
    return text.substr(0, skip_characters(text, 0, characters - 1));
}

bool equal_any_case(std::string_view a, std::string_view b) noexcept {
    return std::ranges::equal(a, b, {}, lower, lower);
}

}  // namespace tavrik::core
