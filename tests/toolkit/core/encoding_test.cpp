#include "toolkit/core/encoding.h"

#include "data/text_encoding.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"

#include <vector>

namespace tavrik::test {
namespace {

using namespace std::string_literals;

const core::EncodingRow& row(std::string_view name) {
    const core::EncodingRow* const found = core::find_encoding(name);
    if (found == nullptr) throw std::runtime_error("no encoding " + std::string(name));
    return *found;
}

// What comes of bytes in two pieces, and of each byte alone, for every place to cut them.
template <class Converter>
void expect_the_same_cut_anywhere(const core::EncodingRow& encoding, const std::string& from, const std::string& to) {
    const auto convert = [](Converter& converter, std::string_view piece, std::string& result) {
        if constexpr (std::is_same_v<Converter, core::Decoder>) {
            converter.decode(piece, result);
        } else {
            converter.encode(piece, result);
        }
    };
    Converter converter(encoding);
    for (std::size_t cut = 0; cut <= from.size(); ++cut) {
        std::string result;
        convert(converter, std::string_view(from).substr(0, cut), result);
        convert(converter, std::string_view(from).substr(cut), result);
        converter.finish(result);
        EXPECT_EQ(result, to) << encoding.internet_name << " cut at " << cut;
    }
    std::string result;
    for (const char byte : from) convert(converter, {&byte, 1}, result);
    converter.finish(result);
    EXPECT_EQ(result, to) << encoding.internet_name << " byte by byte";
}

struct Case {
    const char* encoding;
    std::string bytes;
    std::string text;
};

TEST(Encodings, Text_goes_there_and_back_wherever_it_is_cut) {
    const Case cases[] = {
        {"UTF-8", "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", "Aé€😀"},
        {"UTF-16BE", "\0A\0\xE9\x20\xAC\xD8\x3D\xDE\x00"s, "Aé€😀"},
        {"UTF-16LE", "A\0\xE9\0\xAC\x20\x3D\xD8\x00\xDE"s, "Aé€😀"},
        {"UTF-16", "\0A\0\xE9\xD8\x3D\xDE\x00"s, "Aé😀"},
        {"UTF-32BE", "\0\0\0A\0\x01\xF6\x00"s, "A😀"},
        {"UTF-32LE", "A\0\0\0\x00\xF6\x01\0"s, "A😀"},
        {"US-ASCII", "valley", "valley"},
        {"ISO-8859-1", "long enough \x80\xE9\xFF", "long enough \xC2\x80éÿ"},
        {"macintosh", "\x8E\xDB", "é€"},
        {"windows-1252", "\x80\xE9", "€é"},
        {"windows-1251", "\xCC\xE8\xF0", "Мир"},
        {"x-mac-ce", "\xE5\x8A", "Śä"},
        {"Shift_JIS", "\x93\xFA\x96{", "日本"},
        {"GB18030", "\xC8\xD5\x94\x39\xFC\x36", "日😀"},
        {"ISO-2022-JP", "a\x1B$BF|K\\\x1B(B", "a日本"},
    };
    for (const auto& [encoding, bytes, text] : cases) {
        expect_the_same_cut_anywhere<core::Decoder>(row(encoding), bytes, text);
        expect_the_same_cut_anywhere<core::Encoder>(row(encoding), text, bytes);
    }
}

TEST(Encodings, What_is_no_character_becomes_a_mark_and_nothing_behind_it_is_lost) {
    const Case cases[] = {
        {"UTF-8", "a\x80z\xC3z\xF0\x9F\x98z", "a�z�z�z"},
        {"UTF-8", "\xE0\x80z\xED\xA0\x80z\xC0\xAFz", "��z���z��z"},
        {"UTF-8", "\xF4\x90\x80\x80z\xF5z\xE2\x82\xE2\x82\xACz", "����z�z�€z"},
        {"UTF-8", "eight and more bytes\xFF in a row\xE2\x82", "eight and more bytes� in a row�"},
        {"UTF-16BE", "\xDE\x00\0z\xD8\x3D\0z\xD8\x3D\xD8\x3D\xDE\x00\0"s, "�z�z�😀�"},
        {"UTF-16LE", "\x3D\xD8z\0\x3D\xD8"s, "�z�"},
        {"UTF-32BE", "\0\x11\0\0\0\0\xD8\0\0\0\0z\0\0"s, "��z�"},
        {"US-ASCII", "a\xFFz\x80", "a�z�"},
        {"windows-1252", "a\x81z", "a�z"},
        {"Shift_JIS", "a\xFFz\x93", "a�z�"},
    };
    for (const auto& [encoding, bytes, text] : cases) {
        expect_the_same_cut_anywhere<core::Decoder>(row(encoding), bytes, text);
    }
}

TEST(Encodings, A_mark_at_the_start_tells_the_order_of_each_text) {
    const Case cases[] = {
        {"UTF-16", "\xFE\xFF\0A"s, "A"},
        {"UTF-16",
         "\xFF\xFE"
         "A\0\xFF\xFE"s,
         "A\xEF\xBB\xBF"},
        {"UTF-32", "\0\0\xFE\xFF\0\0\0A"s, "A"},
        {"UTF-32", "\xFF\xFE\0\0A\0\0\0"s, "A"},
        {"UTF-32", "\0\0\0A"s, "A"},
        {"UTF-16LE",
         "\xFF\xFE"
         "A\0"s,
         "\xEF\xBB\xBF"
         "A"},
    };
    for (const auto& [encoding, bytes, text] : cases) {
        expect_the_same_cut_anywhere<core::Decoder>(row(encoding), bytes, text);
    }
}

TEST(Encodings, A_character_that_the_encoding_lacks_becomes_a_question_mark) {
    const Case cases[] = {
        {"US-ASCII", "a???z", "a€é😀z"},
        {"ISO-8859-1", "a?\xE9?z", "a€é😀z"},
        {"windows-1252", "a\x80\xE9?z", "a€é😀z"},
        {"ISO-2022-JP", "\x1B$BF|\x1B(B?a", "日😀a"},
        {"UTF-16BE", "\0a\xFF\xFD\0z"s, "a\xFFz"},
        {"macintosh", "?z?", "\xFFz\xE2\x82"},
    };
    for (const auto& [encoding, bytes, text] : cases) {
        expect_the_same_cut_anywhere<core::Encoder>(row(encoding), text, bytes);
    }
}

TEST(Encodings, A_long_text_is_converted_whole_by_iconv_too) {
    std::string text;
    std::string bytes;
    std::string wanted;
    for (int i = 0; i < 3000; ++i) {
        text += "a日€本";
        bytes += "a\x93\xFA?\x96{";
        wanted += "a日?本";
    }
    EXPECT_TRUE(core::encode_all(row("Shift_JIS"), text) == bytes);
    EXPECT_TRUE(core::decode_all(row("Shift_JIS"), bytes) == wanted);
}

TEST(Encodings, Characters_are_converted_as_iconv_converts_them) {
    std::string all;
    for (std::uint32_t c = 0; c <= 0x10FFFF; c += c < 0x1000 || (c > 0xFF00 && c < 0x10100) ? 1 : 61) {
        if (core::is_code_point(c)) core::append_utf8(all, c);
    }
    for (const char* const name : {"UTF-8", "UTF-16BE", "UTF-16LE", "UTF-32BE", "UTF-32LE"}) {
        const core::EncodingRow by_iconv{0, name};
        const std::string bytes = core::encode_all(row(name), all);
        EXPECT_TRUE(bytes == core::encode_all(by_iconv, all)) << name;
        EXPECT_TRUE(core::decode_all(row(name), bytes) == all) << name;
    }
    std::string high;
    for (int byte = 0; byte < 256; ++byte) high += static_cast<char>(byte);
    EXPECT_EQ(core::decode_all(row("latin1"), high), core::decode_all({0, "ISO-8859-1"}, high));
}

TEST(TextEncodings, Are_found_by_name_and_by_code) {
    const Balance balance;
    const std::pair<const char*, std::uint32_t> cases[] = {
        {"UTF-8", kEncodingUtf8}, {"utf8", kEncodingUtf8}, {"us-ascii", kEncodingAscii},
        {"UTF-16LE", 0x14000100}, {"Latin1", 0x0201},      {"CP1252", 0x0500},
        {"MACINTOSH", 0},         {"iso_8859-15", 0x020F},
    };
    for (const auto& [name, code] : cases) {
        const Ref<TextEncoding> named = encoding_named(name);
        ASSERT_TRUE(named) << name;
        EXPECT_EQ(static_cast<std::uint32_t>(named->code()), code) << name;
        EXPECT_TRUE(static_ref<TextEncoding>(RuntimeTextEncodingByCode(code))->Equals(named)) << name;
    }
    for (const char* const name : {"", "-", "no such encoding", "UTF-8//IGNORE", "KOI8-R//TRANSLIT", "../KOI8-R"}) {
        EXPECT_FALSE(encoding_named(name)) << name;
    }
    EXPECT_FALSE(RuntimeTextEncodingByCode(0xEEEE));
}

TEST(TextEncodings, Beyond_the_table_are_those_of_iconv) {
    const Balance balance;
    const Ref<TextEncoding> known = encoding_named("IBM037");
    ASSERT_TRUE(known);
    EXPECT_EQ(known->Chr(0xC1).view(), "\xC1");
    EXPECT_EQ(core::utf8_of(known->Chr(0xC1)), "A");
    EXPECT_TRUE(encoding_named("ibm-037")->Equals(known));
    EXPECT_EQ(
        static_ref<TextEncoding>(RuntimeTextEncodingByCode(static_cast<std::uint32_t>(known->code())))->internetName(),
        "IBM037");
}

TEST(TextEncodings, Tell_the_parts_of_their_code) {
    const Ref<TextEncoding> encoding = encoding_named("utf-16be");
    EXPECT_EQ(encoding->base(), 0x0100);
    EXPECT_EQ(encoding->format(), 4);
    EXPECT_EQ(encoding->internetName(), "UTF-16BE");
    encoding->mCode = static_cast<std::int32_t>(encoding_code(0x2EEE, 0x155, 9));
    EXPECT_EQ(encoding->variant(), 0x155);
    EXPECT_EQ(encoding->base(), 0x2EEE);
    EXPECT_EQ(encoding->format(), 9);
    EXPECT_EQ(encoding->internetName(), "");
    EXPECT_EQ(class_raised_by([&] { encoding->Chr(65); }), "UnsupportedFormatException");
}

TEST(TextEncodings, Give_the_character_of_a_number_in_their_bytes) {
    struct {
        const char* encoding;
        std::int32_t number;
        std::string bytes;
    } const cases[] = {
        {"UTF-8", 0x1F600, "😀"},     {"UTF-8", 0, "\0"s},          {"UTF-16BE", 0x20AC, "\x20\xAC"},
        {"UTF-8", 0xFFFD, "�"},      {"US-ASCII", 127, "\x7F"},    {"latin1", 255, "\xFF"},
        {"macintosh", 0x8E, "\x8E"}, {"SJIS", 0x93FA, "\x93\xFA"},
    };
    for (const auto& [encoding, number, bytes] : cases) {
        const String text = encoding_named(encoding)->Chr(number);
        EXPECT_EQ(text, bytes) << encoding;
        EXPECT_EQ(text.record()->encoding, static_cast<std::uint32_t>(encoding_named(encoding)->code()));
    }
    const std::pair<const char*, std::int32_t> none[] = {
        {"UTF-8", -1},     {"UTF-8", 0xD800},      {"UTF-16", 0x110000}, {"US-ASCII", 128},
        {"latin1", 0x100}, {"windows-1252", 0x81}, {"SJIS", 0x4142},     {"SJIS", 0x93},
    };
    for (const auto& [encoding, number] : none) {
        EXPECT_EQ(class_raised_by([&, name = encoding, value = number] { encoding_named(name)->Chr(value); }),
                  "OutOfBoundsException")
            << encoding << " " << number;
    }
}

// An encoding that takes itself for any other.
struct AnyEncoding : Class<AnyEncoding, TextEncoding> {
    static const ClassDefinition& definition() {
        static constexpr OperationRow kOperations[] = {
            overrides<AnyEncoding, &TextEncoding::Equals, &AnyEncoding::equals>("Equals"),
        };
        static constexpr ClassDefinition kDefinition = define<AnyEncoding>({.operations = kOperations});
        return kDefinition;
    }
    static bool equals(AnyEncoding*, Arg<TextEncoding>) { return true; }
};

TEST(TextEncodings, Compare_as_equal_or_not_by_what_Equals_gives) {
    const Balance balance;
    const Ref<TextEncoding> utf8 = encoding_named("UTF-8");
    const Ref<TextEncoding> ascii = encoding_named("US-ASCII");
    EXPECT_EQ(utf8->Operator_Compare(ascii), 1);
    EXPECT_EQ(ascii->Operator_Compare(utf8), 1);
    EXPECT_EQ(ascii->Operator_Compare(nullptr), 1);
    EXPECT_EQ(utf8->Operator_Compare(encoding_named("utf-8")), 0);
    EXPECT_EQ(make<AnyEncoding>()->Operator_Compare(ascii), 0);
}

}  // namespace
}  // namespace tavrik::test
