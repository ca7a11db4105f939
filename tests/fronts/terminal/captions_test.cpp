#include "toolkit/fronts/terminal/captions.h"

#include "toolkit/fronts/terminal/letter_case.h"

#include <gtest/gtest.h>

namespace tavrik::front::terminal {
namespace {

TEST(Captions, A_caption_is_printed_without_mnemonics) {
    const std::pair<const char*, const char*> cases[] = {
        {"&File", "File"},
        {"Un-do &Null", "Un-do Null"},
        {"Save && Quit", "Save & Quit"},
        {"Save & Quit", "Save & Quit"},
        {"Tail&", "Tail&"},
        {"&&", "&"},
        {"", ""},
    };
    for (const auto& [caption, printed] : cases) EXPECT_EQ(printed_caption(caption), printed);
}

TEST(Captions, Control_characters_are_spelled_out_and_other_bytes_stay) {
    const std::pair<const char*, const char*> cases[] = {
        {"a\nb\r\t", "a\\nb\\r\\t"},
        {"\x1b[2J\x7f", "\\x1b[2J\\x7f"},
        {"\xC2\x85\xC2\x9B", "\\u0085\\u009b"},
        {"\xC2\xA9 \xD0\x9A", "\xC2\xA9 \xD0\x9A"},
        {"\xE9\xC2", "\xE9\xC2"},
    };
    for (const auto& [text, printed] : cases) EXPECT_EQ(printable(text), printed);
    EXPECT_EQ(printable(std::string(1, '\0')), "\\x00");
}

TEST(Captions, White_space_is_trimmed_at_both_ends_only) {
    EXPECT_EQ(trimmed(" \tLoad Map \r"), "Load Map");
    EXPECT_EQ(trimmed(" \t\r"), "");
}

TEST(LetterCase, Texts_are_the_same_in_any_letter_case) {
    const std::pair<const char*, const char*> cases[] = {
        {"Load MAP", "lOAD map"}, {"ÀÉÖÞ", "àéöþ"}, {"ĀŃŽ", "āńž"}, {"ΆΈΌΏΣΑΣ", "άέόώσας"},
        {"ЁЖҐ", "ёжґ"},           {"ԱՖ", "աֆ"},     {"ẠỸ", "ạỹ"},
    };
    for (const auto& [left, right] : cases) EXPECT_TRUE(same_letters(left, right)) << left;
}

TEST(LetterCase, Texts_of_other_letters_differ) {
    const std::pair<const char*, const char*> cases[] = {
        {"a", "ab"}, {"@", "`"}, {"[", "{"}, {"×", "÷"}, {"ā", "Ă"}, {"\xE9", "\xC9"}, {"\xC3", "\xC3\xA9"}, {"e", "é"},
    };
    for (const auto& [left, right] : cases) EXPECT_FALSE(same_letters(left, right)) << left;
    EXPECT_TRUE(same_letters("\xE9\xF0\x9F", "\xE9\xF0\x9F"));
}

}  // namespace
}  // namespace tavrik::front::terminal
