#include "data/binary_stream.h"

#include "data/folder_item.h"
#include "data/memory_block.h"
#include "data/text_encoding.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/streams.h"

#include <sys/resource.h>
#include <sys/socket.h>

#include <cstring>
#include <functional>
#include <random>

namespace tavrik::test {
namespace {

using namespace std::string_literals;

Ref<FolderItem> item_for(const std::string& path) { return static_ref<FolderItem>(core::make_folder_item(path)); }

std::int32_t number_of(StreamError error) { return static_cast<std::int32_t>(error); }

class BinaryStreams : public testing::Test {
protected:
    // What a test has left unread is told to nobody in the next one.
    ~BinaryStreams() override { core::take_unread_stream_failures(); }

    Ref<BinaryStream> open(std::string_view bytes, bool write = true) {
        return item_for(folder_.new_file("valley.map", bytes))->OpenAsBinaryFile(write);
    }
    std::string in_file() const { return bytes_of(folder_.file("valley.map")); }

    Balance balance_;
    TemporaryFolder folder_;
    RecordingFront front_;
};

// Each kind of value: how many bytes it has, and how it is copied from one stream to another.
struct Kind {
    std::size_t size;
    void (*copy)(BinaryStream& from, BinaryStream& to);
};

constexpr Kind kKinds[] = {
    {1, [](BinaryStream& from, BinaryStream& to) { to.WriteByte(from.ReadByte()); }},
    {2, [](BinaryStream& from, BinaryStream& to) { to.WriteShort(from.ReadShort()); }},
    {4, [](BinaryStream& from, BinaryStream& to) { to.WriteLong(from.ReadLong()); }},
    {8, [](BinaryStream& from, BinaryStream& to) { to.WriteDouble(from.ReadDouble()); }},
    {1, [](BinaryStream& from, BinaryStream& to) { to.WriteInt8(from.ReadInt8()); }},
    {2, [](BinaryStream& from, BinaryStream& to) { to.WriteInt16(from.ReadInt16()); }},
    {4, [](BinaryStream& from, BinaryStream& to) { to.WriteInt32(from.ReadInt32()); }},
    {8, [](BinaryStream& from, BinaryStream& to) { to.WriteInt64(from.ReadInt64()); }},
    {1, [](BinaryStream& from, BinaryStream& to) { to.WriteUInt8(from.ReadUInt8()); }},
    {2, [](BinaryStream& from, BinaryStream& to) { to.WriteUInt16(from.ReadUInt16()); }},
    {4, [](BinaryStream& from, BinaryStream& to) { to.WriteUInt32(from.ReadUInt32()); }},
    {8, [](BinaryStream& from, BinaryStream& to) { to.WriteUInt64(from.ReadUInt64()); }},
    {8, [](BinaryStream& from, BinaryStream& to) { to.WriteCurrency(from.ReadCurrency()); }},
    {4, [](BinaryStream& from, BinaryStream& to) { to.WriteSingle(from.ReadSingle()); }},
    {5, [](BinaryStream& from, BinaryStream& to) { to.Write(from.Read(5, nullptr)); }},
};

TEST_F(BinaryStreams, Copy_a_file_value_by_value_in_either_byte_order) {
    std::mt19937 random{9};
    std::string bytes;
    std::string wanted;
    std::vector<std::tuple<const Kind*, bool, bool>> values;
    for (int i = 0; i < 3000; ++i) {
        const Kind& kind = kKinds[random() % std::size(kKinds)];
        const auto& [_, from_little, to_little] = values.emplace_back(&kind, random() % 2 == 0, random() % 2 == 0);
        std::string value(kind.size, '\0');
        for (char& byte : value) byte = static_cast<char>(random() % 0x70);  // no number is a NaN
        bytes += value;
        if (kind.size != 5 && from_little != to_little) std::reverse(value.begin(), value.end());
        wanted += value;
    }
    Ref<BinaryStream> from = open(bytes, false);
    Ref<BinaryStream> to = item_for(folder_.new_file("copy", ""))->OpenAsBinaryFile(true);
    for (const auto& [kind, from_little, to_little] : values) {
        from->set_LittleEndian(from_little);
        to->set_LittleEndian(to_little);
        kind->copy(*from.get(), *to.get());
    }
    EXPECT_EQ(from->LastErrorCode(), 0);
    to = nullptr;
    EXPECT_EQ(bytes_of(folder_.file("copy")), wanted);
}

TEST_F(BinaryStreams, Read_values_with_the_range_of_their_type) {
    const Ref<BinaryStream> stream = open("\x80\xFF\0\0"s);
    const auto at_start = [&](auto read) {
        stream->set_Position(0);
        return (stream.get()->*read)();
    };
    EXPECT_EQ(at_start(&BinaryStream::ReadByte), 128);
    EXPECT_EQ(at_start(&BinaryStream::ReadInt8), -128);
    EXPECT_TRUE(at_start(&BinaryStream::ReadBoolean));
    EXPECT_EQ(at_start(&BinaryStream::ReadUInt32), 0x80FF0000U);
    EXPECT_EQ(at_start(&BinaryStream::ReadLong), -0x7F010000);
    stream->set_LittleEndian(true);
    EXPECT_EQ(at_start(&BinaryStream::ReadShort), -128);
    EXPECT_EQ(at_start(&BinaryStream::ReadUInt16), 0xFF80);
}

TEST_F(BinaryStreams, A_value_cut_off_by_the_end_is_0_and_bytes_are_as_many_as_there_are) {
    const Ref<BinaryStream> stream = open("valley");
    EXPECT_EQ(stream->Read(-1, nullptr), "");
    EXPECT_EQ(stream->Read(3, nullptr), "val");
    EXPECT_EQ(stream->LastErrorCode(), 0);
    EXPECT_EQ(stream->ReadLong(), 0);
    EXPECT_EQ(stream->Position(), 3U);
    EXPECT_EQ(stream->Read(INT32_MAX, nullptr), "ley");
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kEndOfData));
    stream->set_Position(UINT64_MAX);
    EXPECT_EQ(stream->LastErrorCode(), 0) << "until the position is set";
    EXPECT_EQ(stream->Read(4, nullptr), "");
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kEndOfData));
}

TEST_F(BinaryStreams, A_write_past_the_end_extends_the_file) {
    const Ref<BinaryStream> stream = open("ab");
    stream->set_Position(4);
    stream->WriteByte('c');
    EXPECT_EQ(stream->Length(), 5U);
    stream->Flush();
    EXPECT_EQ(in_file(), "ab\0\0c"s);
    stream->set_Length(1);
    EXPECT_EQ(in_file(), "a");
    EXPECT_EQ(stream->Position(), 5U);
}

TEST_F(BinaryStreams, What_was_written_is_in_the_file_after_each_event) {
    const Ref<BinaryStream> stream = open("ab");
    core::deliver([&] { stream->Write("xy"_s); });
    EXPECT_EQ(in_file(), "xy");
    core::deliver([&] {
        stream->Write("z"_s);
        core::show_message({.text = "written"});
        EXPECT_EQ(in_file(), "xyz");
    });
}

TEST_F(BinaryStreams, A_closed_stream_fails_and_leaves_its_file) {
    const Ref<BinaryStream> stream = open("valley");
    stream->Close();
    EXPECT_EQ(stream->LastErrorCode(), 0);
    stream->WriteLong(4);
    stream->set_Length(0);
    EXPECT_EQ(stream->ReadLong(), 0);
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kNotOpen));
    EXPECT_EQ(in_file(), "valley");
}

TEST_F(BinaryStreams, Read_and_write_counted_texts) {
    const Ref<BinaryStream> stream = open("\x05val");
    EXPECT_EQ(stream->ReadPString(nullptr), "val") << "as many bytes as there are";
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kEndOfData));
    EXPECT_EQ(stream->ReadPString(nullptr), "");
    stream->set_Position(0);
    stream->WritePString(String(std::string(254, 'a') + "é"));
    EXPECT_EQ(stream->Length(), 255U) << "no character is cut in two";
    stream->set_Position(0);
    EXPECT_EQ(stream->ReadPString(encoding_named("latin1")).record()->encoding, encoding_named("latin1")->code());
}

TEST_F(BinaryStreams, Over_a_memory_block_see_what_others_write_there) {
    const Ref<MemoryBlock> block = make<MemoryBlock>();
    block->Constructor(2);
    const Ref<BinaryStream> stream = make<BinaryStream>();
    stream->Constructor(block);
    EXPECT_EQ(stream->ReadByte(), 0);
    block->set_Byte(1, 7);
    EXPECT_EQ(stream->ReadByte(), 7);
    stream->WriteByte(9);
    EXPECT_EQ(block->Byte(2), 9);
    const Ref<MemoryBlock> borrowed = make<MemoryBlock>();
    borrowed->Operator_Convert(block->Operator_Convert<void*>());
    stream->Constructor(borrowed);
    EXPECT_EQ(stream->Length(), 0U) << "its size isn't known";
    stream->WriteByte(1);
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kNoRoom));
    EXPECT_EQ(block->Byte(0), 0);
    EXPECT_EQ(class_raised_by([&] { stream->Constructor(Arg<MemoryBlock>(nullptr)); }), "NilObjectException");
}

TEST_F(BinaryStreams, Over_a_text_write_to_a_copy) {
    const String text("valley"_s);
    const Ref<BinaryStream> stream = make<BinaryStream>();
    stream->Constructor(text);
    stream->set_Position(3);
    stream->Write("LEYS"_s);
    stream->set_Position(0);
    EXPECT_EQ(stream->Read(100, nullptr), "valLEYS");
    EXPECT_EQ(text, "valley");
}

TEST_F(BinaryStreams, Over_a_pair_of_sockets_read_and_write_in_turns) {
    int ends[2];
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
    const Ref<BinaryStream> here = make<BinaryStream>();
    Ref<BinaryStream> there = make<BinaryStream>();
    here->Constructor(ends[0], kHandleOfDescriptor);
    there->Constructor(ends[1], kHandleOfDescriptor);
    EXPECT_EQ(here->Handle(kHandleOfDescriptor), ends[0]);
    EXPECT_EQ(here->Handle(1), -1);
    there->Write("onetwo"_s);
    there->Flush();
    EXPECT_EQ(here->Read(3, nullptr), "one") << "without waiting for more";
    here->Write("answer"_s);
    EXPECT_EQ(here->Read(3, nullptr), "two") << "what was read ahead isn't lost";
    EXPECT_EQ(there->Read(6, nullptr), "answer");
    here->set_Position(0);
    EXPECT_EQ(here->LastErrorCode(), number_of(StreamError::kNoPosition));
    there->Write("end"_s);
    there = nullptr;
    EXPECT_FALSE(here->EOF_());
    EXPECT_EQ(here->Read(INT32_MAX, nullptr), "end");
    EXPECT_TRUE(here->EOF_());
    here->Write("x"_s);
    here->Flush();
    EXPECT_EQ(here->LastErrorCode(), number_of(StreamError::kWriteFailed)) << "and no signal ends the program";
}

TEST_F(BinaryStreams, Take_no_other_handles) {
    const Ref<BinaryStream> stream = make<BinaryStream>();
    EXPECT_EQ(class_raised_by([&] { stream->Constructor(0, 5); }), "UnsupportedFormatException");
    stream->Constructor(12345, kHandleOfDescriptor);
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kNotOpen));
    EXPECT_EQ(stream->Handle(kHandleOfDescriptor), -1);
    EXPECT_TRUE(stream->EOF_());
}

// While the code runs, no file may grow beyond a few bytes. Trying it sends a signal that would end the process.
void on_a_full_disk(const std::function<void()>& code) {
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{16, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    code();
    ::setrlimit(RLIMIT_FSIZE, &before);
}

TEST_F(BinaryStreams, Keep_a_failure_and_tell_it_unless_the_code_has_read_it) {
    const Ref<BinaryStream> stream = open("valley", false);
    for (const bool reads : {true, false}) {
        core::deliver([&] {
            stream->WriteByte(1);
            stream->set_Position(0);
            stream->Read(100, nullptr);
            if (reads) {
                EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kReadOnly));
            }
            EXPECT_TRUE(front_.messages.empty());
        });
    }
    core::deliver([] {});
    ASSERT_EQ(front_.messages.size(), 1U);
    EXPECT_EQ(front_.messages[0], "valley.map could not be written: "s + std::strerror(EBADF));
    EXPECT_EQ(in_file(), "valley");
}

TEST_F(BinaryStreams, Tell_of_a_full_disk_after_their_end_too) {
    core::deliver([&] {
        const Ref<BinaryStream> stream = open("");
        stream->Write("more than sixteen bytes"_s);
        on_a_full_disk([&] { stream->Close(); });
    });
    ASSERT_EQ(front_.messages.size(), 1U);
    EXPECT_EQ(front_.messages[0].rfind("valley.map could not be written: ", 0), 0U) << front_.messages[0];
}

}  // namespace
}  // namespace tavrik::test
