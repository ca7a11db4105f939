#include "toolkit/core/byte_store.h"

#include "data/binary_stream.h"
#include "data/folder_item.h"
#include "data/memory_block.h"
#include "data/text_encoding.h"
#include "tests/support/balance.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/core/file_store.h"
#include "toolkit/core/folder_item.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <random>

namespace tavrik::test {
namespace {

using core::FileStore;

FileStore open_for_writing(const std::string& path) {
    auto opened = FileStore::open(path, true);
    EXPECT_TRUE(opened.file) << opened.error << opened.reason;
    return std::move(*opened.file);
}

TEST(FileStore, Changes_a_file_in_place) {
    const TemporaryFolder folder;
    const std::string path = folder.new_file("map", "0123456789");
    const std::string link = folder.file("link");
    ASSERT_EQ(::link(path.c_str(), link.c_str()), 0);
    open_for_writing(path).write(4, "xy");
    EXPECT_EQ(bytes_of(link), "0123xy6789");
}

TEST(FileStore, Reads_nothing_where_no_file_can_reach) {
    const TemporaryFolder folder;
    FileStore store = open_for_writing(folder.new_file("map", "0123456789"));
    constexpr auto kFarthest = std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    char bytes[16];
    for (const std::uint64_t position : {kFarthest - 1, kFarthest + 1, UINT64_MAX}) {
        int error = -1;
        EXPECT_EQ(store.read(position, bytes, error), 0U) << position;
        EXPECT_EQ(error, 0) << position;
    }
    EXPECT_EQ(store.write(UINT64_MAX, "x"), EFBIG);
    EXPECT_EQ(store.set_length(UINT64_MAX), EFBIG);
}

struct Refused {
    std::string path;
    int error;
    std::string reason;
};

TEST(FileStore, Opens_regular_files_alone_and_never_waits) {
    const TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    folder.new_file("file", "");

    const Refused cases[] = {
        {folder.path(), 0, "it is a folder"},
        {folder.file("pipe"), 0, "it is a pipe, not a file"},
        {"/dev/null", 0, "it is a device, not a file"},
        {folder.file("missing"), ENOENT, ""},
        {folder.file("file") + std::string(1, '\0'), EINVAL, ""},
    };
    for (const auto& [path, error, reason] : cases) {
        for (const bool write : {false, true}) {
            const auto opened = FileStore::open(path, write);
            EXPECT_FALSE(opened.file) << path;
            EXPECT_EQ(opened.error, error) << path;
            EXPECT_EQ(opened.reason, reason) << path;
        }
    }
}

// A stream over one of the four kinds of stores, which are all to do the same.
struct Form {
    const char* name;
    Ref<BinaryStream> (*open)(const std::string& path, const Ref<MemoryBlock>& block);
    // The bytes where they lie, once the stream is flushed.
    std::string (*stored)(BinaryStream& stream, const std::string& path, const Ref<MemoryBlock>& block);
};

std::string in_file(BinaryStream&, const std::string& path, const Ref<MemoryBlock>&) { return bytes_of(path); }

constexpr Form kForms[] = {
    {"file",
     [](const std::string& path, const Ref<MemoryBlock>&) {
         return static_ref<FolderItem>(core::make_folder_item(path))->OpenAsBinaryFile(true);
     },
     in_file},
    {"descriptor",
     [](const std::string& path, const Ref<MemoryBlock>&) {
         Ref<BinaryStream> stream = make<BinaryStream>();
         stream->Constructor(::open(path.c_str(), O_RDWR | O_CLOEXEC), kHandleOfDescriptor);
         return stream;
     },
     in_file},
    {"text",
     [](const std::string&, const Ref<MemoryBlock>&) {
         Ref<BinaryStream> stream = make<BinaryStream>();
         stream->Constructor(""_s);
         return stream;
     },
     [](BinaryStream& stream, const std::string&, const Ref<MemoryBlock>&) {
         const std::uint64_t position = stream.Position();
         stream.set_Position(0);
         const String all = stream.Read(static_cast<std::int32_t>(stream.Length()), nullptr);
         stream.set_Position(position);
         return std::string(all.view());
     }},
    {"memory block",
     [](const std::string&, const Ref<MemoryBlock>& block) {
         Ref<BinaryStream> stream = make<BinaryStream>();
         stream->Constructor(block);
         return stream;
     },
     [](BinaryStream&, const std::string&, const Ref<MemoryBlock>& block) {
         return std::string(block->Operator_Convert<String>().view());
     }},
};

class Streams : public testing::TestWithParam<Form> {};

TEST_P(Streams, Agree_with_a_row_of_bytes_over_random_operations) {
    constexpr int kRounds = 250'000;
    const Balance balance;
    const TemporaryFolder folder;
    const std::string path = folder.new_file("map", "");
    const Ref<MemoryBlock> block = make<MemoryBlock>();
    std::mt19937_64 random{3};
    const auto up_to = [&](std::size_t most) { return static_cast<std::size_t>(random() % (most + 1)); };
    std::string model;
    std::size_t position = 0;
    Ref<BinaryStream> stream = GetParam().open(path, block);

    const auto write = [&](std::string_view bytes) {
        if (!bytes.empty() && model.size() < position + bytes.size()) model.resize(position + bytes.size());
        if (!bytes.empty()) model.replace(position, bytes.size(), bytes);
        position += bytes.size();
    };
    const auto there = [&](std::size_t count) { return model.substr(std::min(position, model.size()), count); };
    for (int round = 0; round < kRounds; ++round) {
        // Often at or near the last place, sometimes past the end.
        if (const std::size_t way = up_to(9); way <= 3) {
            position = way == 0 ? up_to(model.size() + 100) : position - std::min(position, up_to(40));
            stream->set_Position(position);
        }
        const std::size_t count = up_to(2000) == 0 ? up_to(150'000) : up_to(12);
        switch (up_to(20)) {
            case 0:
            case 1:
            case 2:
            case 3: {
                const auto value = static_cast<std::int32_t>(random());
                char bytes[sizeof value];
                std::memcpy(bytes, &value, sizeof value);
                stream->set_LittleEndian(true);
                stream->WriteInt32(value);
                write({bytes, sizeof bytes});
                break;
            }
            case 4:
            case 5:
            case 6:
            case 7: {
                const std::string wanted = there(2);
                stream->set_LittleEndian(false);
                const std::uint16_t value = stream->ReadUInt16();
                if (wanted.size() < 2) {
                    ASSERT_EQ(value, 0) << round;
                    break;
                }
                const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(wanted[at]); };
                ASSERT_EQ(value, byte(0) * 256 + byte(1)) << round;
                position += 2;
                break;
            }
            case 8:
            case 9:
            case 10: {
                std::string bytes(count, static_cast<char>(random()));
                stream->Write(String(bytes));
                write(bytes);
                break;
            }
            case 11: {
                const std::string text(std::min<std::size_t>(count, 255), 'p');
                stream->WritePString(String(text));
                write(static_cast<char>(static_cast<unsigned char>(text.size())) + text);
                break;
            }
            case 12:
                if (up_to(50) != 0) break;
                stream->Flush();
                ASSERT_EQ(GetParam().stored(*stream.get(), path, block), model) << round;
                break;
            case 13:
                if (up_to(400) != 0) break;
                model.resize(up_to(100'000));
                stream->set_Length(model.size());
                break;
            case 14:
                ASSERT_EQ(stream->EOF_(), position >= model.size()) << round;
                break;
            default: {
                const std::string wanted = there(count);
                ASSERT_EQ(stream->Read(static_cast<std::int32_t>(count), nullptr), wanted) << round;
                position += wanted.size();
            }
        }
        ASSERT_EQ(stream->Position(), position) << round;
        if (up_to(10) == 0) {
            ASSERT_EQ(stream->Length(), model.size()) << round;
        }
    }
    EXPECT_LE(stream->LastErrorCode(), static_cast<std::int32_t>(StreamError::kEndOfData));
    stream->Flush();
    EXPECT_EQ(GetParam().stored(*stream.get(), path, block), model);
}

INSTANTIATE_TEST_SUITE_P(All, Streams, testing::ValuesIn(kForms), [](const auto& form) {
    std::string name = form.param.name;
    std::ranges::replace(name, ' ', '_');
    return name;
});

}  // namespace
}  // namespace tavrik::test
