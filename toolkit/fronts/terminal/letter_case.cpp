#include "toolkit/fronts/terminal/letter_case.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace tavrik::front::terminal {
namespace {

// Every `step`th letter from `first` to `last` folds to the letter `distance` behind it.
struct FoldingRange {
    char32_t first;
    char32_t last;
    char32_t step;
    char32_t distance;
};

constexpr FoldingRange kFoldingRanges[] = {
    {U'A', U'Z', 1, 32},                                                        // ASCII
    {0x00C0, 0x00D6, 1, 32}, {0x00D8, 0x00DE, 1, 32},                           // Latin-1
    {0x0100, 0x012E, 2, 1},  {0x0132, 0x0136, 2, 1},  {0x0139, 0x0147, 2, 1},   // Latin Extended-A
    {0x014A, 0x0176, 2, 1},  {0x0179, 0x017D, 2, 1},                            //
    {0x0388, 0x038A, 1, 37}, {0x0391, 0x03A1, 1, 32}, {0x03A3, 0x03AB, 1, 32},  // Greek
    {0x0386, 0x0386, 1, 38}, {0x038C, 0x038C, 1, 64}, {0x038E, 0x038F, 1, 63},  //
    {0x03C2, 0x03C2, 1, 1},                                                     // the sigma at a word's end
    {0x0400, 0x040F, 1, 80}, {0x0410, 0x042F, 1, 32}, {0x0460, 0x0480, 2, 1},   // Cyrillic
    {0x048A, 0x04BE, 2, 1},  {0x04C1, 0x04CD, 2, 1},  {0x04D0, 0x052E, 2, 1},   //
    {0x0531, 0x0556, 1, 48},                                                    // Armenian
    {0x1E00, 0x1E94, 2, 1},  {0x1EA0, 0x1EFE, 2, 1},                            // Latin Extended Additional
};

char32_t folded(char32_t letter) {
    for (const FoldingRange& range : kFoldingRanges) {
        if (letter < range.first || letter > range.last) continue;
        if ((letter - range.first) % range.step == 0) return letter + range.distance;
    }
    return letter;
}

constexpr char32_t kBeyondUnicode = 0x110000;

std::size_t sequence_length(std::uint8_t lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

// Takes the next letter off the text. A byte that begins no letter becomes a value that no letter has.
char32_t take_letter(std::string_view& text) {
    const auto byte_at = [&](std::size_t index) { return static_cast<std::uint8_t>(text[index]); };
    const std::uint8_t lead = byte_at(0);
    const std::size_t length = sequence_length(lead);
    const auto continues = [](char byte) { return (static_cast<std::uint8_t>(byte) & 0xC0) == 0x80; };
    if (length == 0 || length > text.size() || !std::ranges::all_of(text.substr(1, length - 1), continues)) {
        text.remove_prefix(1);
        return kBeyondUnicode + lead;
    }
    constexpr std::array<std::uint8_t, 5> lead_bits{0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t letter = lead & lead_bits[length];
    for (std::size_t index = 1; index < length; ++index) letter = letter << 6 | (byte_at(index) & 0x3F);
    text.remove_prefix(length);
    return letter;
}

std::u32string folded(std::string_view text) {
    std::u32string letters;
    while (!text.empty()) letters.push_back(folded(take_letter(text)));
    return letters;
}

}  // namespace

bool same_letters(std::string_view left, std::string_view right) { return folded(left) == folded(right); }

}  // namespace tavrik::front::terminal
