#include "tests/support/temporary_folder.h"
#include "tests/toolkit/volumes/model.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace tavrik::test {
namespace {

using volume::Access;
using volume::Kind;
using volume::Mode;
using volume::Volume;

struct VolumeFixture : testing::Test {
    const TemporaryFolder folder;
    const std::string path = folder.file("volume");
    std::shared_ptr<Volume> volume = open_volume(path, Mode::kCreate).volume;

    void SetUp() override { ASSERT_TRUE(volume); }

    void reopen() { reopen(path); }
    void reopen(const std::string& other) {
        volume.reset();
        volume = open_volume(other, Mode::kOpen).volume;
        ASSERT_TRUE(volume);
    }
    std::unique_ptr<volume::File> open(std::string_view file, Access access = Access::kWrite) {
        int error = 0;
        auto opened = volume->open(file, access, error);
        EXPECT_EQ(error, 0) << file;
        return opened;
    }
    void write(const std::string& file, std::string_view bytes) {
        EXPECT_EQ(volume->create_file(file, 0644), 0) << file;
        EXPECT_EQ(open(file)->write(0, bytes), 0) << file;
    }
    std::string bytes_in(const std::string& file) { return everything_in(*volume)[file].bytes; }
    std::uint64_t size_of(const std::string& file) {
        volume::Entry entry;
        EXPECT_EQ(volume->stat(file, entry), 0) << file;
        return entry.size;
    }
};

using Archive = VolumeFixture;

TEST_F(Archive, Random_changes_do_what_they_do_to_a_model) {
    RandomChanges changes({}, 7);
    for (int step = 0; step < 1000; ++step) {
        const auto outcome = changes.step(volume.get());
        ASSERT_EQ(outcome.error, outcome.expected) << "step " << step;
        if (step % 250 == 249) reopen();
        if (step % 50 != 49) continue;
        ASSERT_TRUE(everything_in(*volume) == changes.model()) << "step " << step;
    }
    EXPECT_GT(changes.model().size(), 30U);
}

TEST_F(Archive, What_is_written_is_stored_by_a_flush_and_by_the_end_of_the_file) {
    ASSERT_EQ(volume->create_file("a", 0644), 0);
    auto file = open("a");
    ASSERT_EQ(file->write(0, "one"), 0);
    EXPECT_EQ(size_of("a"), 3U);
    ASSERT_EQ(file->flush(), 0);
    const std::string flushed = bytes_of(path);
    ASSERT_EQ(file->write(3, " two"), 0);
    EXPECT_EQ(bytes_of(path), flushed);
    file.reset();
    reopen();
    EXPECT_EQ(bytes_in("a"), "one two");
}

TEST_F(Archive, All_who_have_a_file_open_see_the_same_bytes_wherever_it_goes) {
    write("a", "old");
    const auto writer = open("a");
    const auto reader = open("a", Access::kRead);
    ASSERT_EQ(writer->write(0, "new"), 0);
    ASSERT_EQ(volume->move("a", "b"), 0);
    std::string bytes(3, ' ');
    int error = 0;
    EXPECT_EQ(reader->read(0, bytes, error), 3U);
    EXPECT_EQ(bytes, "new");
    EXPECT_EQ(reader->write(0, "no"), EBADF);
    ASSERT_EQ(writer->flush(), 0);
    EXPECT_EQ(bytes_in("b"), "new");
    ASSERT_EQ(volume->remove("b"), 0);
    ASSERT_EQ(volume->create_file("b", 0644), 0);
    EXPECT_EQ(writer->write(3, "er"), 0);
    EXPECT_EQ(writer->flush(), 0);
    EXPECT_EQ(reader->length(error), 5U);
    EXPECT_EQ(bytes_in("b"), "");
}

TEST_F(Archive, Bytes_are_compressed_where_that_is_smaller) {
    write("a", std::string(1 << 20, 'x'));
    EXPECT_LT(bytes_of(path).size(), std::size_t{64} * 1024);
    reopen();
    EXPECT_EQ(bytes_in("a"), std::string(1 << 20, 'x'));
}

TEST_F(Archive, Times_and_permissions_are_kept) {
    const std::time_t start = std::time(nullptr);
    write("a", "text");
    volume::Entry entry;
    ASSERT_EQ(volume->stat("a", entry), 0);
    EXPECT_GE(entry.modified, start);
    ASSERT_EQ(volume->stat("", entry), 0);
    EXPECT_GE(entry.modified, start);
    for (const std::string_view changed : {"a", ""}) {
        ASSERT_EQ(volume->set_modified(changed, -5), 0);
        ASSERT_EQ(volume->set_mode(changed, 0751), 0);
        reopen();
        ASSERT_EQ(volume->stat(changed, entry), 0);
        EXPECT_EQ(entry.modified, -5);
        EXPECT_EQ(entry.mode, 0751U);
    }
}

TEST_F(Archive, Paths_that_lead_nowhere_are_refused) {
    const std::string long_name(256, 'n');
    std::string long_path = "a";
    while (long_path.size() < 4096) long_path += "/a";
    const std::string with_zero("a\0b", 3);
    const std::pair<std::string, int> cases[] = {
        {"", EINVAL},
        {"/a", EINVAL},
        {"a/", EINVAL},
        {".", EINVAL},
        {"..", EINVAL},
        {"a/../b", EINVAL},
        {"a//b", EINVAL},
        {long_name, ENAMETOOLONG},
        {long_path, ENAMETOOLONG},
        {with_zero, EINVAL},
    };
    ASSERT_EQ(volume->create_folder("a", 0755), 0);
    for (const auto& [wrong, error] : cases) EXPECT_EQ(volume->create_folder(wrong, 0755), error) << wrong;
    EXPECT_EQ(volume->create_folder(std::string(255, 'n'), 0755), 0);
    EXPECT_EQ(volume->remove(""), EBUSY);
    EXPECT_EQ(volume->move("", "b"), EBUSY);
}

TEST_F(Archive, A_move_leaves_no_path_too_long) {
    const auto make_chain = [this](char name, int depth) {
        std::string chain;
        for (int i = 0; i < depth; ++i) {
            chain += (i == 0 ? "" : "/") + std::string(250, name);
            EXPECT_EQ(volume->create_folder(chain, 0755), 0);
        }
        return chain;
    };
    const std::string deep = make_chain('d', 15);
    EXPECT_EQ(volume->move(std::string(250, 'd'), make_chain('e', 3) + "/d"), ENAMETOOLONG);
    volume::Entry entry;
    EXPECT_EQ(volume->stat(deep, entry), 0);
}

// Runs a command in the folder of the test.
bool runs(const TemporaryFolder& folder, const std::string& command) {
    return std::system(("cd '" + folder.path() + "' && " + command).c_str()) == 0;
}

TEST_F(Archive, The_tool_of_SQLite_reads_it) {
    if (!runs(folder, "sqlite3 -version >/dev/null 2>&1")) GTEST_SKIP() << "there is no sqlite3 here";
    ASSERT_EQ(volume->create_folder("folder", 0755), 0);
    write("folder/large", std::string(5000, 'x'));
    write("folder/small", "y");
    write("empty", "");
    ASSERT_TRUE(runs(folder, "sqlite3 volume -A -t | sort | tr '\\n' ' ' >list")) << "while it is open";
    EXPECT_EQ(bytes_of(folder.file("list")), "empty folder folder/large folder/small ");
    ASSERT_TRUE(runs(folder, "mkdir out && cd out && sqlite3 ../volume -A -x"));
    EXPECT_EQ(bytes_of(folder.file("out/folder/large")), std::string(5000, 'x'));
    EXPECT_EQ(bytes_of(folder.file("out/folder/small")), "y");
    EXPECT_EQ(bytes_of(folder.file("out/empty")), "");
    ASSERT_EQ(volume->create_link("link", "folder/small"), 0);
    ASSERT_TRUE(runs(folder, "sqlite3 volume 'SELECT mode, sz, typeof(data), data FROM sqlar WHERE sz < 0' >link"));
    EXPECT_EQ(bytes_of(folder.file("link")), "41471|-1|text|folder/small\n");
}

TEST_F(Archive, It_reads_and_changes_what_the_tool_of_SQLite_wrote) {
    if (!runs(folder, "sqlite3 -version >/dev/null 2>&1")) GTEST_SKIP() << "there is no sqlite3 here";
    ASSERT_TRUE(runs(folder,
                     "umask 022 && mkdir -p in/b/c && printf x >in/b/c/f && seq 1000 >in/n && "
                     "ln -s n in/l && chmod 600 in/n && (cd in && sqlite3 ../all -A -c . && "
                     "sqlite3 ../some -A -c b/c/f)"));
    Model expected{{"b", {}}, {"b/c", {}}, {"b/c/f", {Kind::kFile, 0644, "x"}}};
    reopen(folder.file("some"));
    EXPECT_TRUE(everything_in(*volume) == expected);
    ASSERT_EQ(volume->remove("b/c/f"), 0);
    ASSERT_EQ(volume->set_mode("b", 0711), 0);
    reopen(folder.file("some"));
    EXPECT_TRUE(everything_in(*volume) == (Model{{"b", {Kind::kFolder, 0711}}, {"b/c", {}}}));

    reopen(folder.file("all"));
    expected["l"] = {Kind::kLink, 0777, "n"};
    expected["n"] = {Kind::kFile, 0600, bytes_of(folder.file("in/n"))};
    EXPECT_TRUE(everything_in(*volume) == expected);
    ASSERT_EQ(volume->move("b", "moved"), 0);
    EXPECT_EQ(bytes_in("moved/c/f"), "x");
}

TEST_F(Archive, What_another_program_commits_is_seen_at_once) {
    if (!runs(folder, "sqlite3 -version >/dev/null 2>&1")) GTEST_SKIP() << "there is no sqlite3 here";
    write("a", "old");
    const auto reader = open("a", Access::kRead);
    ASSERT_TRUE(runs(folder, "sqlite3 volume \"UPDATE sqlar SET data = 'newer', sz = 5\""));
    int error = 0;
    EXPECT_EQ(reader->length(error), 5U);
    EXPECT_EQ(bytes_in("a"), "newer");
}

}  // namespace
}  // namespace tavrik::test
