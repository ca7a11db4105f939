#include <tavrik/runtime.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

String string(const std::string& text) { return String(std::string_view(text)); }

// A character begins at the first byte and at each that isn't 10xxxxxx.
TEST(CharacterFunctions, Count_characters_of_any_bytes) {
    const std::vector<std::string> characters{"\x80",         "a",    "\xC3\xA4", {'\0'}, "\xF0\x9F\x98\x80", "\xD0",
                                              "\xE2\x82\xAC", "\xFF", "b"};
    const auto length = static_cast<std::int32_t>(characters.size());
    const auto part = [&](std::int32_t start, std::int32_t count) {
        std::string joined;
        for (std::int32_t i = std::max(start, 1); i <= length && i - std::max(start, 1) < count; ++i) {
            joined += characters[static_cast<std::size_t>(i) - 1];
        }
        return joined;
    };
    const String text = string(part(1, length));
    EXPECT_EQ(StringDBCSLen(text), length);
    for (std::int32_t start = -2; start < length + 3; ++start) {
        EXPECT_EQ(StringDBCSLeft(text, start), part(1, start)) << start;
        EXPECT_EQ(StringDBCSMid2(text, start), part(start, length)) << start;
        for (std::int32_t count = -2; count < length + 3; ++count) {
            EXPECT_EQ(StringDBCSMid3(text, start, count), part(start, count)) << start << " " << count;
        }
        for (std::int32_t sought = 1; sought <= length; ++sought) {
            EXPECT_EQ(StringInStr(start, text, string(part(sought, 2))), start <= sought ? sought : 0) << start;
        }
    }
    EXPECT_EQ(StringInStr(0, text, "c"_s), 0);
}

struct Split {
    String text;
    String separator;
    std::vector<std::string> fields;
};

TEST(FieldFunctions, Split_a_text_at_each_separator) {
    const Split splits[] = {{"a;b;;c"_s, ";"_s, {"a", "b", "", "c"}},
                            {";"_s, ";"_s, {"", ""}},
                            {nullptr, ";"_s, {""}},
                            {"aXYbXXY"_s, "XY"_s, {"a", "bX", ""}},
                            {"map"_s, nullptr, {"map"}},
                            {"\xC3\xA4;x"_s, ";"_s, {"\xC3\xA4", "x"}}};
    for (const auto& [text, separator, fields] : splits) {
        EXPECT_EQ(StringCountFields(text, separator), static_cast<std::int32_t>(fields.size())) << text.view();
        std::int32_t number = 0;
        for (const std::string& field : fields) EXPECT_EQ(StringNthField(text, separator, ++number), field);
    }
}

TEST(CharacterFunctions, Take_any_number) {
    EXPECT_EQ(StringDBCSMid3("map"_s, INT32_MIN, INT32_MAX), "map");
    EXPECT_EQ(StringDBCSMid3("map"_s, 2, INT32_MIN), "");
    EXPECT_EQ(StringDBCSLeft("map"_s, INT32_MIN), "");
    EXPECT_EQ(StringDBCSMid2("map"_s, INT32_MAX), "");
    EXPECT_EQ(StringDBCSMid3(nullptr, 1, 1), "");
}

TEST(Val, Reads_the_number_at_the_start) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::pair<double, std::vector<std::string_view>> cases[] = {
        {0, {"", "0x10", "-", ".", "--5", "-+5", "inf", "nan", "map1", "1e-999"}},
        {1, {"1,5", "1e"}},
        {42, {" \t\r\n42", "42 7", {"42\0002", 4}}},
        {-3.5, {"-3.5px"}},
        {7, {"+7", "7."}},
        {0.5, {".5"}},
        {1000, {"1e3"}},
        {0.01, {"1E-2"}},
        {kInfinity, {"1e999"}},
        {9007199254740992.0, {"9007199254740993"}},
    };
    for (const auto& [wanted, texts] : cases) {
        for (const auto text : texts) EXPECT_EQ(StringVal(String(text)), wanted) << '"' << text << '"';
    }
}

}  // namespace
}  // namespace tavrik::test
