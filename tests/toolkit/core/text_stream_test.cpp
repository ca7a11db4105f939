#include "data/binary_stream.h"
#include "data/folder_item.h"
#include "data/text_encoding.h"
#include "data/text_input_stream.h"
#include "data/text_output_stream.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/encoding.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/streams.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <random>
#include <vector>

namespace tavrik::test {
namespace {

using namespace std::string_literals;

class TextStreams : public testing::Test {
protected:
    ~TextStreams() override { core::take_unread_stream_failures(); }

    Ref<FolderItem> item() const { return static_ref<FolderItem>(core::make_folder_item(folder_.file("log"))); }
    Ref<TextInputStream> open(std::string_view bytes) {
        folder_.new_file("log", bytes);
        return item()->OpenAsTextFile();
    }
    std::string in_file() const { return bytes_of(folder_.file("log")); }

    Balance balance_;
    TemporaryFolder folder_;
};

std::string encoded(const char* encoding, std::string_view text) {
    return core::encode_all(*core::find_encoding(std::string_view(encoding)), text);
}

// All lines, each with the position behind it.
using Lines = std::vector<std::pair<std::string, std::uint64_t>>;
Lines lines_of(const Ref<TextInputStream>& stream, const Ref<TextEncoding>& encoding = nullptr) {
    Lines lines;
    while (!stream->EOF_()) {
        const String line = stream->ReadLine(encoding);
        lines.emplace_back(line.view(), stream->PositionB());
    }
    return lines;
}

TEST_F(TextStreams, Read_lines_that_end_in_any_way) {
    const struct {
        std::string bytes;
        Lines lines;
    } cases[] = {
        {"", {}},
        {"a", {{"a", 1}}},
        {"a\n", {{"a", 2}}},
        {"a\rb\r\nc\n\nd\r\r\n", {{"a", 2}, {"b", 5}, {"c", 7}, {"", 8}, {"d", 10}, {"", 12}}},
        {"\n\r", {{"", 1}, {"", 2}}},
        {"a\0b\n"s, {{"a\0b"s, 4}}},
    };
    for (const auto& [bytes, lines] : cases) EXPECT_EQ(lines_of(open(bytes)), lines) << bytes;
    const Ref<TextInputStream> stream = open("a\n");
    stream->ReadLine(nullptr);
    EXPECT_EQ(stream->LastErrorCode(), 0);
    EXPECT_EQ(stream->ReadLine(nullptr), "");
    EXPECT_TRUE(stream->ReadError());
    EXPECT_EQ(stream->LastErrorCode(), static_cast<std::int32_t>(StreamError::kEndOfData));
    EXPECT_TRUE(core::take_unread_stream_failures().empty()) << "the end of a text is no failure to tell of";
    stream->set_PositionB(1);
    EXPECT_EQ(stream->LastErrorCode(), 0);
    EXPECT_FALSE(stream->EOF_());
}

TEST_F(TextStreams, Read_the_same_lines_wherever_the_buffer_ends) {
    for (const char* const encoding : {"UTF-8", "UTF-16LE", "UTF-32BE", "Shift_JIS"}) {
        for (const std::size_t before : {kTextInputRoom, kTextInputRoom / 2, kTextInputRoom / 4, std::size_t{4096}}) {
            for (std::size_t less = 0; less < 6; ++less) {
                const std::string first = std::string(before - less, 'x');
                const std::string bytes = encoded(encoding, first + "\r\nガ\r\r\nend");
                const auto lines = lines_of(open(bytes), encoding_named(encoding));
                ASSERT_EQ(lines.size(), 4U) << encoding << before - less;
                EXPECT_EQ(lines[0].first, first);
                EXPECT_EQ(lines[0].second, encoded(encoding, first + "\r\n").size());
                EXPECT_EQ(lines[1].first, "ガ");
                EXPECT_EQ(lines[2].first, "");
                EXPECT_EQ(lines[2].second, bytes.size() - encoded(encoding, "end").size());
                EXPECT_EQ(lines[3].first, "end");
            }
        }
    }
}

TEST_F(TextStreams, Take_the_encoding_from_the_argument_the_property_and_the_mark) {
    const auto latin = encoding_named("ISO-8859-1");
    const auto utf16 = encoding_named("UTF-16");
    const struct {
        std::string bytes;
        Ref<TextEncoding> property;
        Ref<TextEncoding> argument;
        std::string text;
    } cases[] = {
        {"é", nullptr, nullptr, "é"},
        {"\xE9", latin, nullptr, "é"},
        {"\xE9", utf16, latin, "é"},
        {"\xE9|", nullptr, nullptr, "\xEF\xBF\xBD|"},
        {"\xEF\xBB\xBFmap", nullptr, nullptr, "map"},
        {"\xEF\xBB\xBFm", latin, nullptr, "ï»¿m"},
        {"\xFF\xFE\xE9\0"s, nullptr, nullptr, "é"},
        {"\xFE\xFF\0\xE9"s, nullptr, nullptr, "é"},
        {"\xFF\xFE\xE9\0"s, utf16, nullptr, "é"},
        {"\0\xE9"s, utf16, nullptr, "é"},
        {"\xFF\xFE\0\0\xE9\0\0\0"s, nullptr, nullptr, "é"},
        {"\0\0\xFE\xFF\0\0\0\xE9"s, nullptr, encoding_named("UTF-32"), "é"},
        {"\xFF\xFE", nullptr, nullptr, ""},
        {"\0\xE9\0"s, utf16, nullptr, "é\xEF\xBF\xBD"},
    };
    for (const auto& [bytes, property, argument, text] : cases) {
        const Ref<TextInputStream> stream = open(bytes);
        stream->set_Encoding(property);
        EXPECT_EQ(stream->Encoding(), property);
        EXPECT_EQ(stream->ReadAll(argument), text);
        stream->set_PositionB(0);
        EXPECT_EQ(stream->ReadLine(argument), text);
        stream->set_PositionB(0);
        EXPECT_EQ(stream->Read(100, argument), text);
        EXPECT_EQ(stream->PositionB(), bytes.size());
        EXPECT_TRUE(stream->EOF_());
    }
    const Ref<TextEncoding> none = make<TextEncoding>();
    none->mCode = 0x7FFF;
    EXPECT_EQ(class_raised_by([&] { open("a")->ReadAll(none); }), "UnsupportedFormatException");
}

// However a text is cut by reads, its pieces are the whole, and each position is that of a character.
TEST_F(TextStreams, Read_pieces_that_are_the_whole_text) {
    std::mt19937 random{5};
    for (const char* const name : {"UTF-8", "UTF-16LE", "Shift_JIS", "ISO-2022-JP", "UTF-32"}) {
        std::string text;
        for (int i = 0; i < 20'000; ++i) text += i % 3 == 0 ? "ガ" : i % 7 == 0 ? "я" : "a";
        const std::string bytes = encoded(name, text);
        const Ref<TextInputStream> stream = open(bytes);
        stream->set_Encoding(encoding_named(name));
        std::string pieces;
        while (!stream->EOF_()) {
            const String piece = stream->Read(1 + static_cast<std::int32_t>(random() % 200), nullptr);
            ASSERT_TRUE(!piece.empty() || stream->EOF_()) << name << " at " << stream->PositionB();
            pieces += piece.view();
        }
        EXPECT_EQ(pieces, text) << name;
        EXPECT_EQ(stream->PositionB(), bytes.size());
    }
    const Ref<TextInputStream> stream = open("aéz");
    EXPECT_EQ(stream->Read(2, nullptr), "a");
    EXPECT_EQ(stream->PositionB(), 1U) << "the cut character is still to come";
    EXPECT_EQ(stream->Read(1, encoding_named("ISO-8859-1")), "Ã") << "in another encoding too";
    EXPECT_EQ(stream->Read(-5, nullptr), "");
    EXPECT_EQ(stream->ReadAll(nullptr), "\xEF\xBF\xBDz");
}

TEST_F(TextStreams, Over_a_pipe_wait_for_no_more_than_a_line) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const Ref<TextInputStream> in = make<TextInputStream>();
    Ref<TextOutputStream> out = make<TextOutputStream>();
    in->Constructor(ends[0], kHandleOfDescriptor);
    out->Constructor(ends[1], kHandleOfDescriptor);
    EXPECT_EQ(out->Handle(kHandleOfDescriptor), ends[1]);
    out->Write("y\r"_s);
    out->Flush();
    EXPECT_EQ(in->ReadLine(nullptr), "y");
    EXPECT_EQ(in->PositionB(), 2U);
    out->Write("\né"_s);
    out = nullptr;
    EXPECT_EQ(in->Read(1, nullptr), "é");
    EXPECT_TRUE(in->EOF_());
}

TEST_F(TextStreams, Write_lines_with_their_delimiter) {
    folder_.new_file("log", "old");
    Ref<TextOutputStream> stream = item()->CreateTextFile();
    EXPECT_EQ(in_file(), "") << "a file that is there is emptied";
    EXPECT_EQ(stream->Delimiter(), "\n");
    stream->WriteLine("one"_s);
    stream->set_Delimiter("\r\n"_s);
    EXPECT_EQ(stream->Delimiter(), "\r\n");
    stream->WriteLine("two"_s);
    stream->Write(encoding_named("latin1")->Chr(0xE9));
    stream = nullptr;
    EXPECT_EQ(in_file(), "one\ntwo\r\n\xE9");
    const Ref<TextOutputStream> both[] = {item()->AppendToTextFile(), item()->AppendToTextFile()};
    for (const auto& end : {"+"_s, "-"_s}) {
        for (const auto& each : both) {
            each->Write(end);
            each->Flush();
        }
    }
    EXPECT_EQ(in_file(), "one\ntwo\r\n\xE9++--") << "none overwrites what another has written";
    both[0]->Close();
    both[0]->Write("x"_s);
    EXPECT_EQ(both[0]->LastErrorCode(), static_cast<std::int32_t>(StreamError::kNotOpen));
    EXPECT_TRUE(both[0]->WriteError());
}

TEST_F(TextStreams, Are_nil_where_no_file_can_be_opened) {
    const Ref<FolderItem> missing = static_ref<FolderItem>(core::make_folder_item(folder_.file("none/log")));
    EXPECT_FALSE(missing->OpenAsTextFile());
    EXPECT_EQ(missing->LastErrorCode(), ENOENT);
    EXPECT_FALSE(missing->CreateTextFile());
    EXPECT_FALSE(missing->AppendToTextFile());
    EXPECT_FALSE(missing->CreateBinaryFile(""_s));
    const Ref<BinaryStream> stream = item()->CreateBinaryFile(""_s);
    stream->WriteInt16(0x6162);
    stream->Close();
    EXPECT_EQ(in_file(), "ab");
}

}  // namespace
}  // namespace tavrik::test
