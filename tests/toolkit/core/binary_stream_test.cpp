#include "data/binary_stream.h"

#include "data/folder_item.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/folder_item.h"

#include <sys/resource.h>

#include <csignal>
#include <cstring>
#include <limits>
#include <random>

namespace tavrik::test {
namespace {

using namespace std::string_literals;

Ref<FolderItem> item_for(const std::string& path) { return static_ref<FolderItem>(core::make_folder_item(path)); }

std::int32_t number_of(StreamError error) { return static_cast<std::int32_t>(error); }

class BinaryStreams : public testing::Test {
protected:
    Ref<BinaryStream> open(std::string_view bytes, bool write = true) {
        return item_for(folder_.new_file("valley.map", bytes))->OpenAsBinaryFile(write);
    }
    std::string in_file() const { return bytes_of(folder_.file("valley.map")); }

    Balance balance_;
    TemporaryFolder folder_;
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
    std::vector<std::pair<const Kind*, std::array<bool, 2>>> values;
    for (int i = 0; i < 3000; ++i) {
        const Kind& kind = kKinds[random() % std::size(kKinds)];
        values.push_back({&kind, {random() % 2 == 0, random() % 2 == 0}});
        std::string value(kind.size, '\0');
        for (char& byte : value) byte = static_cast<char>(random() % 0x70);  // no number is a NaN
        bytes += value;
        const auto& [from_little, to_little] = values.back().second;
        if (kind.size != 5 && from_little != to_little) std::reverse(value.begin(), value.end());
        wanted += value;
    }
    Ref<BinaryStream> from = open(bytes, false);
    Ref<BinaryStream> to = item_for(folder_.new_file("copy", ""))->OpenAsBinaryFile(true);
    for (const auto& [kind, orders] : values) {
        from->set_LittleEndian(orders[0]);
        to->set_LittleEndian(orders[1]);
        kind->copy(*from.get(), *to.get());
    }
    EXPECT_TRUE(from->EOF_());
    EXPECT_EQ(from->LastErrorCode(), 0);
    to = nullptr;
    EXPECT_EQ(bytes_of(folder_.file("copy")), wanted);
}

TEST_F(BinaryStreams, Read_values_with_the_range_of_their_type) {
    const Ref<BinaryStream> stream = open("\x80\xFF\0\0\0\0\0\0"s);
    const auto at_start = [&](auto read) {
        stream->set_Position(0);
        return read();
    };
    EXPECT_EQ(at_start([&] { return stream->ReadByte(); }), 128);
    EXPECT_EQ(at_start([&] { return stream->ReadInt8(); }), -128);
    EXPECT_TRUE(at_start([&] { return stream->ReadBoolean(); }));
    stream->set_LittleEndian(true);
    EXPECT_EQ(at_start([&] { return stream->ReadShort(); }), -128);
    EXPECT_EQ(at_start([&] { return stream->ReadUInt16(); }), 0xFF80);
    EXPECT_EQ(at_start([&] { return stream->ReadLong(); }), 0xFF80);
    stream->set_LittleEndian(false);
    EXPECT_EQ(at_start([&] { return stream->ReadUInt32(); }), 0x80FF0000U);
    EXPECT_EQ(at_start([&] { return stream->ReadLong(); }), -0x7F010000);
}

TEST_F(BinaryStreams, A_value_cut_off_by_the_end_reads_as_0_and_leaves_the_position) {
    const Ref<BinaryStream> stream = open("\xFF\xFF\xFF\xFF\xFF\xFF");
    stream->set_Position(3);
    EXPECT_EQ(stream->ReadLong(), 0);
    EXPECT_EQ(stream->Position(), 3U);
    EXPECT_EQ(stream->ReadShort(), -1);
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kEndOfData)) << "until the position is set";
    EXPECT_TRUE(stream->ReadError());
    EXPECT_TRUE(stream->WriteError());
    stream->set_Position(0);
    EXPECT_EQ(stream->LastErrorCode(), 0);
    EXPECT_FALSE(stream->ReadError());
}

TEST_F(BinaryStreams, Bytes_are_read_as_many_as_there_are) {
    const Ref<BinaryStream> stream = open("valley");
    EXPECT_EQ(stream->Read(0, nullptr), "");
    EXPECT_EQ(stream->Read(-1, nullptr), "");
    EXPECT_EQ(stream->Read(6, nullptr), "valley");
    EXPECT_EQ(stream->LastErrorCode(), 0);
    EXPECT_EQ(stream->Read(1, nullptr), "");
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kEndOfData));
    stream->set_Position(3);
    EXPECT_EQ(stream->Read(INT32_MAX, nullptr), "ley");
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kEndOfData));
    stream->set_Position(UINT64_MAX);
    EXPECT_EQ(stream->Read(4, nullptr), "");
    EXPECT_TRUE(stream->EOF_());
}

TEST_F(BinaryStreams, A_write_past_the_end_extends_the_file) {
    const Ref<BinaryStream> stream = open("ab");
    stream->set_Position(4);
    stream->WriteByte('c');
    EXPECT_EQ(stream->Length(), 5U);
    EXPECT_EQ(stream->Position(), 5U);
    stream->Flush();
    EXPECT_EQ(in_file(), "ab\0\0c"s);
    stream->set_Length(1);
    EXPECT_EQ(in_file(), "a");
    EXPECT_EQ(stream->Position(), 5U);
}

TEST_F(BinaryStreams, What_was_written_is_in_the_file_after_each_event) {
    const RecordingFront front;
    const Ref<BinaryStream> stream = open("ab");
    core::deliver([&] { stream->Write("xy"_s); });
    EXPECT_EQ(in_file(), "xy");
    core::deliver([&] {
        stream->Write("z"_s);
        core::show_message({.text = "written"});
        EXPECT_EQ(in_file(), "xyz");
    });
}

TEST_F(BinaryStreams, A_failure_stays_whatever_follows) {
    const Ref<BinaryStream> stream = open("valley", false);
    stream->WriteByte(1);
    stream->set_Position(0);
    EXPECT_EQ(stream->ReadByte(), 'v');
    stream->Read(100, nullptr);
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kReadOnly));
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kReadOnly)) << "asking doesn't clear it";
    stream->Close();
    EXPECT_EQ(in_file(), "valley");
}

TEST_F(BinaryStreams, A_closed_stream_fails_in_everything) {
    void (*const uses[])(BinaryStream&) = {
        [](BinaryStream& s) { EXPECT_EQ(s.ReadLong(), 0); },
        [](BinaryStream& s) { EXPECT_EQ(s.Read(4, nullptr), ""); },
        [](BinaryStream& s) { s.WriteLong(4); },
        [](BinaryStream& s) { s.set_Length(0); },
    };
    for (const auto use : uses) {
        const Ref<BinaryStream> stream = open("valley");
        stream->Close();
        stream->Close();
        EXPECT_EQ(stream->LastErrorCode(), 0);
        use(*stream.get());
        EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kNotOpen));
        EXPECT_EQ(in_file(), "valley");
    }
}

// For its life no file may grow beyond a few bytes.
class FullDisk {
public:
    FullDisk() {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{16, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

TEST_F(BinaryStreams, A_write_that_finds_no_room_shows_in_the_error_code) {
    const Ref<BinaryStream> stream = open("");
    {
        const FullDisk full;
        stream->Write("more than sixteen bytes"_s);
        EXPECT_EQ(stream->LastErrorCode(), 0) << "gathered";
        stream->Flush();
    }
    stream->Flush();
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kNoRoom));
    stream->set_Position(0);
    EXPECT_EQ(stream->LastErrorCode(), number_of(StreamError::kNoRoom));
}

class StreamFailures : public BinaryStreams {
protected:
    RecordingFront front_;
};

TEST_F(StreamFailures, That_no_code_has_read_are_told_once_at_the_end_of_the_event) {
    const Ref<BinaryStream> stream = open("valley", false);
    core::deliver([&] {
        stream->WriteByte(1);
        EXPECT_TRUE(front_.messages.empty());
    });
    core::deliver([] {});
    ASSERT_EQ(front_.messages.size(), 1U);
    EXPECT_EQ(front_.messages[0], "valley.map could not be written: "s + std::strerror(EBADF));
}

TEST_F(StreamFailures, That_the_code_has_read_are_not_told) {
    const Ref<BinaryStream> stream = open("valley", false);
    core::deliver([&] {
        stream->WriteByte(1);
        EXPECT_NE(stream->LastErrorCode(), 0);
    });
    EXPECT_TRUE(front_.messages.empty());
}

TEST_F(StreamFailures, Of_a_stream_that_ended_are_told_too) {
    core::deliver([&] {
        const Ref<BinaryStream> stream = open("");
        stream->Write("more than sixteen bytes"_s);
        const FullDisk full;
        stream->Close();
    });
    ASSERT_EQ(front_.messages.size(), 1U);
    EXPECT_EQ(front_.messages[0].rfind("valley.map could not be written: ", 0), 0U) << front_.messages[0];
}

}  // namespace
}  // namespace tavrik::test
