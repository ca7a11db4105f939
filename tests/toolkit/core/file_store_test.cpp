#include "toolkit/core/file_store.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
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

std::string read(FileStore& store, std::uint64_t position, std::size_t count) {
    std::string bytes(count, '?');
    int error = 0;
    bytes.resize(store.read(position, bytes, error));
    EXPECT_EQ(error, 0);
    return bytes;
}

TEST(FileStore, Agrees_with_a_row_of_bytes_over_random_operations) {
    const TemporaryFolder folder;
    const std::string path = folder.new_file("map", "");
    std::mt19937_64 random{3};
    const auto up_to = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
    std::string model;
    {
        FileStore store = open_for_writing(path);
        std::size_t position = 0;
        for (int round = 0; round < 1500; ++round) {
            // Often at or near the last place, sometimes past the end.
            const std::size_t way = up_to(5);
            if (way == 0) position = up_to(model.size() + 100);
            if (way <= 2) position -= std::min(position, up_to(40));
            const std::size_t count = up_to(40) == 0 ? up_to(100'000) : up_to(12);
            const std::size_t what = up_to(19);
            if (what < 10) {
                std::string bytes(count, '\0');
                for (char& byte : bytes) byte = static_cast<char>(random());
                ASSERT_EQ(store.write(position, bytes), 0);
                if (count > 0 && model.size() < position + count) model.resize(position + count);
                model.replace(std::min(position, model.size()), count, bytes);
                position += count;
            } else if (what < 17) {
                const std::string wanted = model.substr(std::min(position, model.size()), count);
                ASSERT_EQ(read(store, position, count), wanted) << round;
                position += wanted.size();
            } else if (what == 17) {
                ASSERT_EQ(store.flush(), 0);
                ASSERT_EQ(bytes_of(path), model);
            } else if (up_to(20) == 0) {
                model.resize(up_to(200'000));
                ASSERT_EQ(store.set_length(model.size()), 0);
            }
            int error = 0;
            ASSERT_EQ(store.length(error), model.size());
        }
    }
    EXPECT_EQ(bytes_of(path), model);
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
    for (const std::uint64_t position : {kFarthest - 1, kFarthest + 1, UINT64_MAX}) {
        EXPECT_EQ(read(store, position, 100'000), "") << position;
    }
    EXPECT_EQ(store.write(UINT64_MAX, "x"), EFBIG);
    EXPECT_EQ(store.set_length(UINT64_MAX), EFBIG);
    EXPECT_EQ(read(store, 0, 99), "0123456789");
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

}  // namespace
}  // namespace tavrik::test
