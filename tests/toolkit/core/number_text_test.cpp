#include "toolkit/core/number_text.h"

#include "toolkit/core/platform_types.h"
#include "toolkit/core/unicode.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

TEST(NumberText, Gives_every_number_back_bit_by_bit) {
    std::mt19937_64 random{7};
    for (int round = 0; round < 50'000; ++round) {
        const std::uint64_t bits = random() >> (round % 64);
        const auto number = std::bit_cast<double>(bits);
        const auto single = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
        const double read = core::read_double(core::NumberText(number).view());
        ASSERT_TRUE(std::isnan(number) || std::bit_cast<std::uint64_t>(read) == bits) << number;
        const float read_single = core::read_single(core::NumberText(single).view());
        ASSERT_TRUE(std::isnan(single) || std::bit_cast<std::uint32_t>(read_single) == static_cast<std::uint32_t>(bits))
            << single;
        const Currency currency{static_cast<std::int64_t>(bits)};
        ASSERT_EQ(core::read_currency(core::NumberText(currency).view()), currency);
        ASSERT_EQ(core::read_integer<std::uint64_t>(core::NumberText(bits).view()), bits);
        ASSERT_EQ(core::read_address(core::NumberText::of_address(bits).view()), bits);
    }
}

TEST(NumberText, Reads_infinity_and_nan_only_as_words_of_their_own) {
    EXPECT_EQ(core::read_double(" -Inf "), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(core::read_single("+inf"), std::numeric_limits<float>::infinity());
    EXPECT_NE(core::read_double("NaN"), core::read_double("NaN"));
    for (const std::string_view text : {"info", "inf 1", "nancy", "infinity", "- inf"}) {
        EXPECT_EQ(core::read_double(text), 0) << text;
    }
    EXPECT_EQ(core::NumberText(-std::numeric_limits<double>::quiet_NaN()).view(), "nan");
}

TEST(NumberText, Has_an_end_for_numbers_too_large_or_too_small_for_a_type) {
    const std::string zeros(500, '0');
    EXPECT_EQ(core::read_double("1" + zeros), std::numeric_limits<double>::infinity());
    EXPECT_EQ(core::read_double("-1" + zeros), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(core::read_double(zeros + "1" + zeros + "e-500"), 1);
    EXPECT_EQ(core::read_double("0." + zeros + "1e501"), 1);
    EXPECT_EQ(core::read_double("0." + zeros + "1"), 0);
    EXPECT_EQ(core::read_double("0" + zeros + "e9999999999999999999999"), 0);
    EXPECT_EQ(core::read_single("1e39"), std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::signbit(core::read_double("-1e-9999")));
}

TEST(CurrencyText, Is_exact_rounds_half_away_from_zero_and_saturates) {
    const std::pair<std::int64_t, std::vector<std::string>> cases[] = {
        {0, {"", "0.00004", ".00004999999", "-0.00004", "e5", "1e-99999999999999999999", "0e99999999999", "."}},
        {1, {"0.0001", "0.00005", "0.00014999", "1e-4", "5e-5", " +.0001x"}},
        {-1, {"-0.00005", "-0.0001"}},
        {2, {"0.00015"}},
        {10000, {"1", "1.", "1.00004", "0.99995", "10e-1", "0.001e+3", "1,5", "1e", "1e+", std::string("1\0002", 3)}},
        {kMost,
         {"922337203685477.5807", "922337203685477.58074", "922337203685477.5808", "1e20", "1e999999999999",
          "9223372036854775807", "18446744073709551616", std::string(400, '9')}},
        {kMost - 1, {"922337203685477.58055"}},
        {kLeast, {"-922337203685477.5808", "-922337203685477.58075", "-1e15"}},
        {kLeast + 1, {"-922337203685477.58074"}},
        {70000, {"7" + std::string(300, '0') + "e-300", "0." + std::string(300, '0') + "7e301"}}};
    for (const auto& [count, texts] : cases) {
        for (const std::string& text : texts) EXPECT_EQ(core::read_currency(text).ten_thousandths, count) << text;
    }
    const std::pair<std::int64_t, std::string> texts[] = {
        {1, "0.0001"}, {-12500, "-1.25"}, {100'0000, "100"}, {-50, "-0.005"}, {kLeast, "-922337203685477.5808"}};
    for (const auto& [count, text] : texts) EXPECT_EQ(core::NumberText(Currency{count}).view(), text);
}

TEST(IntegerText, Is_the_longest_integer_at_the_start_and_saturates) {
    const std::pair<std::int64_t, std::vector<std::string_view>> cases[] = {
        {0, {"", "-", ".9", "--1", "+-1", "x1", "-0.9", "0x10"}},
        {12, {"12.9", "\v12", "+12", "12e3", "0012", "12-"}},
        {-12, {"-12.9", "\n-12 3"}},
        {kMost, {"9223372036854775807", "9223372036854775808", "99999999999999999999999"}},
        {kLeast, {"-9223372036854775808", "-99999999999999999999999"}}};
    for (const auto& [number, texts] : cases) {
        for (const auto text : texts) {
            EXPECT_EQ(core::read_integer<std::int64_t>(text), number) << text;
            EXPECT_EQ(core::read_integer<std::int32_t>(text), std::clamp<std::int64_t>(number, INT32_MIN, INT32_MAX));
            EXPECT_EQ(core::read_integer<std::uint32_t>(text), std::clamp<std::int64_t>(number, 0, UINT32_MAX));
        }
    }
    EXPECT_EQ(core::read_integer<std::uint64_t>("18446744073709551616"), UINT64_MAX);
}

TEST(OtherTexts, Have_forms_of_their_own) {
    const std::pair<std::uint32_t, std::vector<std::string_view>> colors[] = {
        {0x0AB1FF, {"#0ab1ff", " #0AB1FFcc"}},
        {0, {"#", "#0ab1f", "#0ab1fg", "#-10000", "-1", ""}},
        {255, {"255", "255.9"}}};
    for (const auto& [rgb, texts] : colors) {
        for (const auto text : texts) EXPECT_EQ(core::read_color(text).rgb, rgb) << text;
    }
    EXPECT_EQ(core::NumberText::of_color({0xFF0AB1C2}).view(), "#0ab1c2");
    EXPECT_EQ(core::NumberText::of_address(0xBEEF).view(), "0xbeef");
    EXPECT_EQ(core::read_address(" 0XBeefg"), 0xBEEF);
    EXPECT_EQ(core::read_address("0x"), 0);
    EXPECT_EQ(core::read_address("17"), 17);
    EXPECT_EQ(core::read_address("0x1ffffffffffffffff"), UINT64_MAX);
    for (const auto text : {"true", " TrUe\n", "0.5", "-1", "nan", "7x"}) EXPECT_TRUE(core::read_boolean(text)) << text;
    for (const auto text : {"false", "", "truex", "0", "-0.0", "yes"}) EXPECT_FALSE(core::read_boolean(text)) << text;
}

std::string there_and_back(std::string_view utf8) {
    const WString text = RuntimeNewWString(utf8);
    const std::string back = core::utf8_of(core::view(text));
    UnlockWString(text);
    return back;
}

TEST(Utf8, Turns_every_character_into_utf16_and_back) {
    for (char32_t character = 0; character < 0x110000; ++character) {
        if (character >= 0xD800 && character < 0xE000) continue;
        std::u16string units;
        if (character >= 0x10000) units.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
        units.push_back(static_cast<char16_t>(character < 0x10000 ? character : 0xDC00 | (character & 0x3FF)));
        const std::string utf8 = core::utf8_of(units);
        ASSERT_EQ(utf8.size(), character < 0x80 ? 1U : character < 0x800 ? 2U : character < 0x10000 ? 3U : 4U);
        ASSERT_EQ(there_and_back(utf8), utf8) << static_cast<std::uint32_t>(character);
    }
    EXPECT_EQ(core::utf8_of(u"\u20AC\U0001F600"), "\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(Utf8, Replaces_what_is_no_valid_sequence) {
    const std::string bad = "\xEF\xBF\xBD";
    // clang-format off
    const std::pair<std::string_view, std::string> cases[] = {
        {"a\x80z", "a" + bad + "z"}, {"\xC0\xAF", bad + bad}, {"\xE2\x82", bad}, {"\xE2\x82z", bad + "z"},
        {"\xED\xA0\x80", bad + bad + bad}, {"\xF4\x90\x80\x80", bad + bad + bad + bad}, {"\xF0\x9F\x98", bad},
        {"\xFF", bad}, {"\xE0\x80\x80", bad + bad + bad}, {"\xF5\x80", bad + bad}, {"\xF0\x8F", bad + bad},
        {"\xC3\xC3\xA4", bad + "\xC3\xA4"}};
    // clang-format on
    for (const auto& [bytes, text] : cases) EXPECT_EQ(there_and_back(bytes), text);
    EXPECT_EQ(core::utf8_of({u"\xD83Dz\xDE00\xD83D", 4}), bad + "z" + bad + bad);
}

}  // namespace
}  // namespace tavrik::test
