#include "tests/support/temporary_folder.h"
#include "tests/toolkit/volumes/model.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <sys/stat.h>

#include <cerrno>

namespace tavrik::test {
namespace {

using volume::Mode;

struct ForeignFile : testing::Test {
    const TemporaryFolder folder;

    std::string database(const char* sql) {
        const std::string path = folder.file("database");
        sqlite3* opened = nullptr;
        EXPECT_EQ(sqlite3_open(path.c_str(), &opened), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(opened, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(opened);
        sqlite3_close(opened);
        return path;
    }
    std::string volume() {
        const auto made = open_volume(folder.file("volume"), Mode::kCreate).volume;
        RandomChanges changes({}, 3);
        for (int i = 0; i < 200; ++i) changes.step(made.get());
        return folder.file("volume");
    }
};

TEST_F(ForeignFile, Is_told_from_a_volume) {
    const std::string text = folder.new_file("text", std::string(5000, 't'));
    const std::string empty = folder.new_file("empty", "");
    EXPECT_TRUE(open_volume(text, Mode::kOpen).is_foreign);
    EXPECT_TRUE(open_volume(empty, Mode::kOpen).is_foreign);
    for (const char* const sql : {
             "CREATE TABLE other(name)",
             "CREATE TABLE sqlar(name, mode, mtime, sz)",
             "CREATE TABLE t(name, mode, mtime, sz, data); CREATE VIEW sqlar AS SELECT * FROM t",
             "CREATE TABLE sqlar(name PRIMARY KEY, mode, mtime, sz, data) WITHOUT ROWID",
             "PRAGMA encoding = 'UTF-16'; CREATE TABLE sqlar(name PRIMARY KEY, mode, mtime, sz, data)",
         }) {
        const std::string path = database(sql);
        const auto opened = open_volume(path, Mode::kOpen);
        EXPECT_TRUE(!opened.volume && opened.is_foreign) << sql;
        EXPECT_NE(opened.reason, "") << sql;
        ASSERT_EQ(::unlink(path.c_str()), 0);
    }
}

TEST_F(ForeignFile, A_volume_that_was_cut_is_none) {
    const std::string path = volume();
    const std::string whole = bytes_of(path);
    ASSERT_GT(whole.size(), 20'000U);
    for (std::size_t length = 1; length < whole.size(); length += length < 100 ? 33 : 1777) {
        const std::string cut = folder.new_file("cut", std::string_view(whole).substr(0, length));
        const auto opened = open_volume(cut, Mode::kOpen);
        EXPECT_TRUE(!opened.volume && opened.is_foreign) << length;
    }
}

TEST_F(ForeignFile, Rows_that_no_folder_could_have_are_not_shown) {
    const std::string path = database(
        "CREATE TABLE sqlar(name TEXT PRIMARY KEY, mode INT, mtime INT, sz INT, data BLOB);"
        "INSERT INTO sqlar VALUES ('../up', 33188, 0, 1, x'41'), ('a/../b', 33188, 0, 1, x'41'),"
        "('/top/f', 33188, 0, 1, x'41'), ('top//./g', 33188, 0, 1, x'41'), ('./top/g', 33188, 0, 1, x'42'),"
        "('file', 33188, 0, 1, x'41'), ('file/below', 33188, 0, 1, x'41'), (NULL, 33188, 0, 1, x'41'),"
        "('', 33188, 0, 1, x'41')");
    const auto opened = open_volume(path, Mode::kOpen);
    ASSERT_TRUE(opened.volume) << opened.reason;
    const ModelEntry file{volume::Kind::kFile, 0644, "A"};
    EXPECT_TRUE(everything_in(*opened.volume) ==
                (Model{{"file", file}, {"top", {}}, {"top/f", file}, {"top/g", file}}));
}

TEST_F(ForeignFile, Sizes_that_lie_are_errors_of_the_file_alone) {
    const std::string path = database(
        "CREATE TABLE sqlar(name TEXT PRIMARY KEY, mode INT, mtime INT, sz INT, data BLOB);"
        "INSERT INTO sqlar VALUES ('huge', 33188, 0, 9223372036854775807, x'41'), ('long', 33188, 0, 900000000, x'41'),"
        "('bad', 33188, 0, 9, x'41'), ('good', 33188, 0, 0, x'41')");
    const auto opened = open_volume(path, Mode::kOpen);
    ASSERT_TRUE(opened.volume) << opened.reason;
    const auto error_of = [&](const char* name) {
        int error = 0;
        opened.volume->open(name, volume::Access::kRead, error)->length(error);
        return error;
    };
    EXPECT_EQ(error_of("huge"), EFBIG);
    EXPECT_EQ(error_of("long"), EIO);
    EXPECT_EQ(error_of("bad"), EIO);
    EXPECT_EQ(error_of("good"), 0);
}

TEST_F(ForeignFile, A_volume_that_is_open_is_in_use) {
    const std::string path = volume();
    const auto first = open_volume(path, Mode::kOpen);
    ASSERT_TRUE(first.volume);
    const auto second = open_volume(path, Mode::kOpen);
    EXPECT_EQ(second.error, EBUSY);
    EXPECT_FALSE(second.is_foreign);
}

TEST_F(ForeignFile, Only_regular_files_are_opened_and_only_empty_ones_made_volumes) {
    const std::string text = folder.new_file("text", "text");
    EXPECT_EQ(open_volume(text, Mode::kCreate).error, EEXIST);
    EXPECT_EQ(bytes_of(text), "text");
    EXPECT_TRUE(open_volume(folder.new_file("empty", ""), Mode::kCreate).volume);
    EXPECT_EQ(open_volume(folder.file("nothing"), Mode::kOpen).error, ENOENT);
    EXPECT_EQ(open_volume(folder.path(), Mode::kOpen).error, EINVAL);
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_EQ(open_volume(folder.file("pipe"), Mode::kCreate).error, EINVAL);
}

}  // namespace
}  // namespace tavrik::test
