#include "toolkit/core/path.h"

#include <gtest/gtest.h>

namespace tavrik::core {
namespace {

using std::string_literals::operator""s;

std::string every_byte() {
    std::string bytes = "/";
    for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

TEST(Path, Is_made_absolute_and_plain) {
    const struct {
        const char* path;
        const char* result;
    } cases[] = {{"/", "/"},         {"//a///b/", "/a/b"}, {"a", "/home/a"}, {"./a/./", "/home/a"},
                 {"..", "/home/.."}, {"", "/home"},        {"/.", "/"},      {"/...", "/..."}};
    for (const auto& each : cases) EXPECT_EQ(absolute(each.path, "/home"), each.result) << each.path;
}

TEST(Path, Has_a_name_and_a_folder) {
    EXPECT_EQ(name_of("/a/b"), "b");
    EXPECT_EQ(name_of("/"), "/");
    EXPECT_EQ(folder_of("/a/b"), "/a");
    EXPECT_EQ(folder_of("/a"), "/");
    EXPECT_EQ(folder_of("/"), "/");
    EXPECT_EQ(join("/", "a"), "/a");
    EXPECT_EQ(join("/a", "b"), "/a/b");
    EXPECT_TRUE(is_entry_name("..."));
    for (const std::string& name : {""s, "."s, ".."s, "a/b"s, "a\0"s}) EXPECT_FALSE(is_entry_name(name)) << name;
}

TEST(Path, Is_told_from_a_folder) {
    const struct {
        const char* folder;
        const char* path;
        const char* result;
    } cases[] = {{"/a", "/a/b/c", "b/c"}, {"/a/b", "/a/c", "../c"},  {"/a", "/a", "."},         {"/a/b", "/", "../.."},
                 {"/", "/a", "a"},        {"/a/bc", "/a/b", "../b"}, {"/a/b", "/a/bc", "../bc"}};
    for (const auto& each : cases) EXPECT_EQ(relative_to(each.folder, each.path), each.result) << each.path;
}

TEST(Path, Of_any_bytes_goes_through_addresses_and_shell_words) {
    EXPECT_EQ(url_of("/a b/\xC3\xA4%"), "file:///a%20b/%C3%A4%25");
    EXPECT_EQ(shell_quoted("/a/b-1.map"), "/a/b-1.map");
    EXPECT_EQ(shell_quoted("it's"), "'it'\\''s'");
    EXPECT_EQ(shell_quoted("~"), "'~'");

    EXPECT_EQ(path_of_url(url_of(every_byte())), every_byte());
    const std::string quoted = shell_quoted(every_byte());
    std::string_view rest = quoted;
    bool malformed = true;
    EXPECT_EQ(take_shell_word(rest, malformed)->bytes, every_byte());
    EXPECT_FALSE(malformed);
    EXPECT_EQ(rest, "");
}

TEST(Path, Comes_from_a_file_address_of_this_machine_only) {
    EXPECT_EQ(path_of_url("file://localhost/a%2fb"), "/a/b");
    for (const char* url : {"", "/a", "http://a/b", "file://other/a", "file:///%", "file:///%4", "file:///%4x",
                            "file:///a?b", "file:///a#b", "file://localhosts/a"}) {
        EXPECT_FALSE(path_of_url(url)) << url;
    }
}

TEST(Shell_words, Lose_their_quotes_and_nothing_else) {
    std::string_view line = R"( a\ b "c \"d\"\n"'e $f' ~/g h~ ~ )";
    std::string seen;
    bool malformed = false;
    while (const auto word = take_shell_word(line, malformed)) {
        seen += (word->starts_at_home ? "<HOME>" : "") + word->bytes + "|";
    }
    EXPECT_FALSE(malformed);
    EXPECT_EQ(seen, R"(a b|c "d"\ne $f|<HOME>/g|h~|<HOME>|)");
    for (std::string_view bad : {"'a", "\"a", "a\\", "$a", "a*", "a;b", "\"$a\"", "a|b"}) {
        EXPECT_FALSE(take_shell_word(bad, malformed));
        EXPECT_TRUE(malformed);
    }
}

}  // namespace
}  // namespace tavrik::core
