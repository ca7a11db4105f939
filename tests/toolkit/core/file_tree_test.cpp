#include "toolkit/core/file_tree.h"

#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <map>

namespace tavrik::test {
namespace {

namespace fs = std::filesystem;
using core::Links;
using testing::IsEmpty;

// What lies below a folder: names with what each is, and its permissions.
std::map<std::string, std::string> contents(const std::string& folder) {
    std::map<std::string, std::string> found;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder);
        if (entry.is_symlink()) {
            found[name] = "-> " + fs::read_symlink(entry.path()).string();
            continue;
        }
        const auto mode = static_cast<unsigned>(entry.status().permissions());
        found[name] = (entry.is_directory() ? "folder" : bytes_of(entry.path())) + " " + std::to_string(mode);
    }
    return found;
}

void make_tree(const std::string& top) {
    fs::create_directories(top + "/a/b");
    std::ofstream(top + "/a/one") << "1";
    std::ofstream(top + "/\xFF") << "2";
    fs::create_symlink("nowhere", top + "/a/link");
    fs::permissions(top + "/a/one", fs::perms(04640));
    fs::permissions(top + "/a", fs::perms(0550));
}

TEST(File_tree, Copies_a_folder_with_all_that_is_in_it) {
    const TemporaryFolder folder;
    make_tree(folder.file("from"));
    fs::last_write_time(folder.file("from/a"), fs::file_time_type(std::chrono::seconds(-1'000'000'000)));
    ASSERT_EQ(core::copy_tree(folder.file("from"), Links::kFollow, folder.file("to")).error, 0);
    EXPECT_EQ(contents(folder.file("to")), contents(folder.file("from")));
    EXPECT_EQ(fs::last_write_time(folder.file("to/a")), fs::last_write_time(folder.file("from/a")));
    EXPECT_EQ(contents(folder.path()).size(), 12U);
}

TEST(File_tree, Copies_bytes_times_attributes_and_holes) {
    const TemporaryFolder folder;
    const std::string from = folder.new_file("from", "begin");
    constexpr off_t kFar = off_t{1} << 30;
    const core::Descriptor file(::open(from.c_str(), O_WRONLY));
    ASSERT_EQ(::pwrite(file.get(), "end", 3, kFar), 3);
    ASSERT_EQ(::ftruncate(file.get(), kFar + 100), 0);
    const bool has_attributes = ::setxattr(from.c_str(), "user.note", "n", 1, 0) == 0;
    const timespec times[] = {{.tv_sec = 5, .tv_nsec = 6}, {.tv_sec = 7, .tv_nsec = 123'456'789}};
    ASSERT_EQ(::futimens(file.get(), times), 0);

    const std::string to = folder.file("to");
    ASSERT_EQ(core::copy_tree(from, Links::kFollow, to).error, 0);
    struct stat status {};
    ASSERT_EQ(::stat(to.c_str(), &status), 0);
    EXPECT_EQ(status.st_size, kFar + 100);
    EXPECT_LT(status.st_blocks, 1000);
    EXPECT_EQ(status.st_mtim.tv_nsec, 123'456'789);
    char bytes[5] = {};
    const core::Descriptor copy(::open(to.c_str(), O_RDONLY));
    EXPECT_EQ(::pread(copy.get(), bytes, 4, kFar), 4);
    EXPECT_STREQ(bytes, "end");
    EXPECT_EQ(::getxattr(to.c_str(), "user.note", bytes, 5) == 1, has_attributes);
}

TEST(File_tree, Copies_a_link_as_a_link_only_where_it_is_told_to) {
    const TemporaryFolder folder;
    folder.new_file("file", "bytes");
    fs::create_symlink("file", folder.file("link"));
    ASSERT_EQ(core::copy_tree(folder.file("link"), Links::kFollow, folder.file("followed")).error, 0);
    ASSERT_EQ(core::copy_tree(folder.file("link"), Links::kItself, folder.file("itself")).error, 0);
    EXPECT_FALSE(fs::is_symlink(folder.file("followed")));
    EXPECT_EQ(bytes_of(folder.file("followed")), "bytes");
    EXPECT_EQ(fs::read_symlink(folder.file("itself")), "file");
}

TEST(File_tree, Refuses_to_replace_and_to_put_a_folder_into_itself) {
    const TemporaryFolder folder;
    make_tree(folder.file("tree"));
    fs::create_directory(folder.file("empty"));
    fs::create_symlink("nowhere", folder.file("link"));
    fs::create_directory_symlink("tree/a", folder.file("inside"));
    const std::string tree = folder.file("tree");
    const auto before = contents(folder.path());
    const struct {
        std::string to;
        int error;
    } cases[] = {
        {folder.file("empty"), EEXIST}, {folder.file("link"), EEXIST},       {tree, EEXIST},
        {tree + "/a/b/new", EINVAL},    {folder.file("inside/new"), EINVAL}, {folder.file("no/new"), ENOENT},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(core::copy_tree(tree, Links::kFollow, each.to).error, each.error) << each.to;
        EXPECT_EQ(core::move_tree(tree, each.to).error, each.error) << each.to;
    }
    EXPECT_EQ(contents(folder.path()), before);
}

TEST(File_tree, That_cannot_be_copied_whole_leaves_nothing) {
    const TemporaryFolder folder;
    make_tree(folder.file("from"));
    ASSERT_EQ(::mkfifo(folder.file("from/a/b/pipe").c_str(), 0600), 0);
    fs::create_directory(folder.file("target"));
    const core::Outcome outcome = core::copy_tree(folder.file("from"), Links::kFollow, folder.file("target/to"));
    EXPECT_EQ(outcome.error, ENOTSUP);
    EXPECT_THAT(outcome.reason, testing::StartsWith("pipe: "));
    EXPECT_THAT(contents(folder.file("target")), IsEmpty());
}

TEST(File_tree, Moves_within_a_file_system_and_across_two) {
    const TemporaryFolder folder;
    std::string other = "/dev/shm/tavrik-test-XXXXXX";
    if (::mkdtemp(other.data()) == nullptr) GTEST_SKIP() << "there is no second file system";
    make_tree(folder.file("from"));
    const auto before = contents(folder.file("from"));
    ASSERT_EQ(core::move_tree(folder.file("from"), folder.file("to")).error, 0);
    ASSERT_EQ(core::move_tree(folder.file("to"), other + "/to").error, 0);
    EXPECT_EQ(contents(other + "/to"), before);
    EXPECT_THAT(contents(folder.path()), IsEmpty());
    folder.new_file("taken", "mine");
    EXPECT_EQ(core::move_tree(other + "/to/a/one", folder.file("taken")).error, EEXIST);
    EXPECT_EQ(bytes_of(folder.file("taken")), "mine");
    EXPECT_EQ(contents(other + "/to"), before);
    fs::remove_all(other);
}

TEST(File_tree, Goes_deeper_than_a_path_can_and_than_files_can_be_open) {
    const TemporaryFolder folder;
    constexpr int kDepth = 1200;
    const std::string name = "top";
    fs::create_directory(folder.file(name));
    const core::Descriptor top(::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY));
    core::Descriptor here(::openat(top.get(), name.c_str(), O_RDONLY | O_DIRECTORY));
    for (int depth = 0; depth < kDepth; ++depth) {
        ASSERT_EQ(::mkdirat(here.get(), "deep", 0700), 0);
        here = core::Descriptor(::openat(here.get(), "deep", O_RDONLY | O_DIRECTORY));
    }
    ASSERT_EQ(core::copy_tree(folder.file(name), Links::kFollow, folder.file("copy")).error, 0);
    std::string deepest = folder.file("copy");
    for (int depth = 0; depth < kDepth; ++depth) deepest += "/deep";
    struct stat status {};
    EXPECT_EQ(core::look_at(deepest, Links::kItself, status), 0);
    EXPECT_EQ(core::look_at(deepest + "/deep", Links::kItself, status), ENOENT);
    EXPECT_EQ(core::remove_tree(top, name), 0);
    EXPECT_EQ(core::remove_tree(top, "copy"), 0);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

}  // namespace
}  // namespace tavrik::test
