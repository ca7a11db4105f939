#include <tavrik/runtime.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

// The reference: a text is a row of characters, and one begins at the first byte and at each that isn't 10xxxxxx.
std::vector<std::string> characters(std::string_view text) {
    std::vector<std::string> all;
    for (const char byte : text) {
        const bool continues = (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
        if (all.empty() || !continues) all.emplace_back();
        all.back() += byte;
    }
    return all;
}

std::string middle(std::string_view text, std::int32_t start, std::int32_t length) {
    std::string part;
    std::int32_t position = 1;
    start = std::max(start, 1);
    for (const std::string& character : characters(text)) {
        if (position >= start && position - start < length) part += character;
        ++position;
    }
    return part;
}

std::int32_t position_of(std::string_view text, std::int32_t start, std::string_view sought) {
    const auto all = characters(text);
    start = std::max(start, 1);
    if (start > static_cast<std::int32_t>(all.size()) + 1) return 0;
    std::size_t from = 0;
    for (std::int32_t i = 1; i < start; ++i) from += all[static_cast<std::size_t>(i) - 1].size();
    const std::size_t found = text.find(sought, from);
    if (found == std::string_view::npos) return 0;
    return start + static_cast<std::int32_t>(characters(text.substr(from, found - from)).size());
}

std::vector<std::string> fields(std::string text, const std::string& separator) {
    std::vector<std::string> all;
    for (std::size_t end = text.find(separator); end != std::string::npos; end = text.find(separator)) {
        all.push_back(text.substr(0, end));
        text.erase(0, end + separator.size());
    }
    all.push_back(text);
    return all;
}

class Texts {
public:
    std::string next(std::size_t most_parts) {
        static const std::vector<std::string> parts{
            "a",    "b",    "ab",   " ",  "\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x98\x80",
            "\x80", "\xC3", "\xFF", "\n", ";",        {'\0'}};
        std::string text;
        for (std::size_t count = number(most_parts); count > 0; --count) text += parts[number(parts.size() - 1)];
        return text;
    }
    std::size_t number(std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random_); }
    std::int32_t around(std::size_t length) { return static_cast<std::int32_t>(number(length + 5)) - 2; }

private:
    std::mt19937 random_{20};
};

String string(const std::string& text) { return String(std::string_view(text)); }

TEST(CharacterFunctions, Agree_with_a_plain_reference_on_any_bytes) {
    Texts texts;
    for (int round = 0; round < 20'000; ++round) {
        const std::string text = texts.next(40);
        const std::size_t length = characters(text).size();
        const std::int32_t start = texts.around(length);
        const std::int32_t count = texts.around(length);
        const std::string sought = texts.next(2);

        ASSERT_EQ(StringDBCSLen(string(text)), static_cast<std::int32_t>(length)) << text;
        ASSERT_EQ(StringDBCSLeft(string(text), count).view(), middle(text, 1, count)) << text << " " << count;
        ASSERT_EQ(StringDBCSMid2(string(text), start).view(), middle(text, start, INT32_MAX)) << text << " " << start;
        ASSERT_EQ(StringDBCSMid3(string(text), start, count).view(), middle(text, start, count)) << text;
        ASSERT_EQ(StringInStr(start, string(text), string(sought)), position_of(text, start, sought))
            << text << " from " << start << " for " << sought;
    }
}

TEST(FieldFunctions, Agree_with_a_plain_reference_on_any_bytes) {
    Texts texts;
    for (int round = 0; round < 20'000; ++round) {
        const std::string text = texts.next(20);
        const std::string separator = texts.next(1) + "b";
        const auto wanted = fields(text, separator);
        ASSERT_EQ(StringCountFields(string(text), string(separator)), static_cast<std::int32_t>(wanted.size()));
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            ASSERT_EQ(StringNthField(string(text), string(separator), static_cast<std::int32_t>(i) + 1), wanted[i]);
        }
    }
}

TEST(Mid, Is_empty_behind_the_end) {
    for (const std::int32_t start : {4, 5, INT32_MAX}) {
        EXPECT_EQ(StringDBCSMid3("%si"_s, start, 1), "") << start;
        EXPECT_EQ(StringDBCSMid2("%si"_s, start), "") << start;
    }
    EXPECT_EQ(StringDBCSMid3(nullptr, 1, 1), "");
}

TEST(Mid, Takes_any_number) {
    EXPECT_EQ(StringDBCSMid3("map"_s, INT32_MIN, INT32_MAX), "map");
    EXPECT_EQ(StringDBCSMid3("map"_s, 2, INT32_MIN), "");
    EXPECT_EQ(StringDBCSLeft("map"_s, INT32_MIN), "");
    EXPECT_EQ(StringDBCSLeft("map"_s, INT32_MAX), "map");
}

TEST(InStr, Searches_from_the_beginning_for_a_start_of_0) {
    for (const char digit : std::string_view("0123456789")) {
        EXPECT_EQ(StringInStr(0, "0123456789"_s, String(std::string_view(&digit, 1))), digit - '0' + 1);
    }
    EXPECT_EQ(StringInStr(0, "0123456789"_s, "x"_s), 0);
}

TEST(CountFields, Is_1_where_there_is_no_separator) {
    EXPECT_EQ(StringCountFields("Window1.Window1"_s, "."_s), 2);
    EXPECT_EQ(StringCountFields("Window1"_s, "."_s), 1);
    EXPECT_EQ(StringCountFields("Window1"_s, nullptr), 1);
    EXPECT_EQ(StringCountFields(nullptr, "."_s), 1);
    EXPECT_EQ(StringCountFields(".."_s, "."_s), 3);
}

TEST(Val, Reads_the_number_at_the_start) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::pair<std::string_view, double> cases[] = {
        {"", 0},
        {"42", 42},
        {" \t\r\n42", 42},
        {"42 7", 42},
        {"-3.5px", -3.5},
        {"+7", 7},
        {".5", 0.5},
        {"-.5", -0.5},
        {"5.", 5},
        {"1e3", 1000},
        {"1E-2", 0.01},
        {"1e", 1},
        {"1e+", 1},
        {"1,5", 1},
        {"0x10", 0},
        {"-", 0},
        {".", 0},
        {"+", 0},
        {"--5", 0},
        {"+-5", 0},
        {"-+5", 0},
        {"++5", 0},
        {"inf", 0},
        {"nan", 0},
        {"map1", 0},
        {"1e999", kInfinity},
        {"-1e999", -kInfinity},
        {"1e-999", 0},
        {"9007199254740993", 9007199254740992.0},
        {std::string_view("4\0002", 3), 4},
    };
    for (const auto& [text, wanted] : cases) EXPECT_EQ(StringVal(String(text)), wanted) << '"' << text << '"';
}

}  // namespace
}  // namespace tavrik::test
