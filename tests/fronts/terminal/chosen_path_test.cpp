#include "toolkit/fronts/terminal/chosen_path.h"

#include "tests/support/temporary_folder.h"
#include "toolkit/fronts/terminal/file_question.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tavrik::front::terminal {
namespace {

TEST(ChosenPath, A_path_becomes_absolute_and_is_otherwise_kept) {
    const std::string here = std::filesystem::current_path();
    EXPECT_EQ(absolute_path("/a/../b ", "/maps"), "/a/../b ");
    EXPECT_EQ(absolute_path("b\xFF.map", "/maps"), "/maps/b\xFF.map");
    EXPECT_EQ(absolute_path("b", ""), here + "/b");
    EXPECT_EQ(absolute_path("b", "maps"), here + "/maps/b");
    EXPECT_EQ(absolute_path("~/b", "/maps"), std::string(std::getenv("HOME")) + "/b");
    EXPECT_EQ(absolute_path("~b", "/maps"), "/maps/~b");
}

TEST(ChosenPath, A_link_to_a_file_can_be_chosen_and_a_name_with_NUL_cannot) {
    const test::TemporaryFolder folder;
    const std::string file = folder.new_file("valley.map", "map");
    std::filesystem::create_symlink(file, folder.file("link"));
    EXPECT_EQ(refusal_of(folder.file("link")), "");
    EXPECT_EQ(refusal_of(file + std::string("\0.bak", 5)), "No such file or directory");
}

TEST(ChosenPath, A_CR_that_belongs_to_no_file_name_ends_the_line) {
    const test::TemporaryFolder folder;
    const FileChoice choice{.initial_folder = folder.path()};
    const std::optional<std::string> cr = folder.new_file("cr\r", ""), valley = folder.new_file("valley.map", "");
    const std::pair<const char*, std::optional<std::string>> lines[] = {
        {"cr\r", cr}, {"valley.map\r", valley}, {"\r", std::nullopt}};
    for (const auto& [line, chosen] : lines) {
        FileQuestion question(choice);
        EXPECT_EQ(question.take(line), "");
        EXPECT_TRUE(question.ended());
        EXPECT_EQ(question.chosen(), chosen);
    }
}

TEST(ChosenPath, A_path_that_is_turned_down_is_asked_for_again_without_the_title) {
    const test::TemporaryFolder folder;
    const FileChoice choice{.title = "Open", .action_caption = "Load", .initial_folder = folder.path()};
    FileQuestion question(choice);
    EXPECT_EQ(question.take("valley.map"), folder.file("valley.map") +
                                               " can't be chosen: No such file or directory\n"
                                               "Load: path, or an empty line to cancel:\n");
    EXPECT_FALSE(question.ended());
}

}  // namespace
}  // namespace tavrik::front::terminal
