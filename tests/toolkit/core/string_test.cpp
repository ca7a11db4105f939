#include "tests/support/raised.h"

#include <tavrik/string.h>

#include <gtest/gtest.h>

namespace tavrik::test {
namespace {

// The text as it lies behind `text`: length byte, bytes, zero byte.
std::string buffer_of(const StringRecord& record) { return {record.text, static_cast<std::size_t>(record.length) + 2}; }

TEST(StringLiteral, Has_the_layout_of_a_static_string) {
    const StringRecord& record = *"map\0s"_s.record();
    EXPECT_EQ(record.capacity, 10);
    EXPECT_EQ(record.encoding, 0x08000100U);
    EXPECT_EQ(buffer_of(record), std::string("\5map\0s\0", 7));
}

TEST(String, Made_at_run_time_has_the_layout_of_a_literal) {
    for (const std::size_t length : {1U, 254U, 255U, 256U, 1000U}) {
        const std::string bytes(length, 'x');
        const String made{std::string_view(bytes)};
        EXPECT_EQ(made.record()->capacity, static_cast<std::int32_t>(length) + 5);
        const auto first = static_cast<char>(static_cast<unsigned char>(std::min<std::size_t>(length, 255)));
        EXPECT_EQ(buffer_of(*made.record()), first + bytes + '\0') << length;
    }
}

TEST(String, Too_long_for_its_length_field_raises) {
    const auto length = static_cast<std::size_t>(INT32_MAX);
    EXPECT_EQ(class_raised_by([&] { RuntimeNewString("x", length, kEncodingUtf8); }), "OutOfMemoryException");
}

TEST(String, Compares_byte_by_byte_without_sign) {
    const String empty = String::adopt(RuntimeNewString("", 0, kEncodingUtf8));
    const String ascending[] = {nullptr,       String("A"), String("a"),    String(std::string_view("a\0", 2)),
                                String("aa"),  String("b"), String("\x7F"), String("\x80"),
                                String("\xFF")};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t j = 0; j < std::size(ascending); ++j) {
            const int wanted = (i > j) - (i < j);
            EXPECT_EQ(RuntimeStringCompare(ascending[i], ascending[j]), wanted) << i << " with " << j;
        }
    }
    EXPECT_EQ(RuntimeStringCompare(empty, nullptr), 0);
}

TEST(String, Joined_holds_the_bytes_of_both_and_is_the_other_when_one_is_empty) {
    EXPECT_EQ(RuntimeAddString(String("map;"), String("bsp")), "map;bsp");
    EXPECT_EQ(RuntimeAddString("a\0"_s, "\0b"_s), std::string_view("a\0\0b", 4));
    EXPECT_EQ(RuntimeAddString(nullptr, nullptr), "");
    const String text("map");
    EXPECT_EQ(RuntimeAddString(text, nullptr).record(), text.record());
    EXPECT_EQ(RuntimeAddString(nullptr, text).record(), text.record());
    EXPECT_EQ(text.record()->count, 1);
}

}  // namespace
}  // namespace tavrik::test
