#include "toolkit/fronts/terminal/captions.h"

#include "toolkit/fronts/terminal/letter_case.h"

#include <gtest/gtest.h>

namespace tavrik::front::terminal {
namespace {

using Pair = std::pair<const char*, const char*>;

TEST(Captions, A_caption_is_printed_without_mnemonics) {
    const Pair cases[] = {{"Un-do &Null", "Un-do Null"}, {"Save && Quit", "Save & Quit"}, {"Tail&", "Tail&"}};
    for (const auto& [caption, printed] : cases) EXPECT_EQ(printed_caption(caption), printed);
}

TEST(Captions, Control_characters_are_spelled_out_and_other_bytes_stay) {
    const Pair cases[] = {
        {"a\nb\r\t", "a\\nb\\r\\t"},
        {"\x1b[2J\x7f", "\\x1b[2J\\x7f"},
        {"\xC2\x85\xC2\x9B", "\\u0085\\u009b"},
        {"\xC2\xA9 \xD0\x9A\xE9\xC2", "\xC2\xA9 \xD0\x9A\xE9\xC2"},
    };
    for (const auto& [text, printed] : cases) EXPECT_EQ(printable(text), printed);
    EXPECT_EQ(printable(std::string(1, '\0')), "\\x00");
}

TEST(LetterCase, Texts_are_the_same_in_any_letter_case) {
    const Pair same[] = {
        {"Load MAP", "lOAD map"}, {"ÀÉÖÞ", "àéöþ"}, {"ĀŃŽ", "āńž"}, {"ΆΈΌΏΣΑΣ", "άέόώσας"},
        {"ЁЖҐ", "ёжґ"},           {"ԱՖ", "աֆ"},     {"ẠỸ", "ạỹ"},   {"\xE9\xF0\x9F", "\xE9\xF0\x9F"},
    };
    for (const auto& [left, right] : same) EXPECT_TRUE(same_letters(left, right)) << left;
    const Pair other[] = {
        {"a", "ab"}, {"@", "`"}, {"[", "{"}, {"×", "÷"}, {"ā", "Ă"}, {"\xE9", "\xC9"}, {"\xC3", "\xC3\xA9"}, {"e", "é"},
    };
    for (const auto& [left, right] : other) EXPECT_FALSE(same_letters(left, right)) << left;
}

}  // namespace
}  // namespace tavrik::front::terminal
