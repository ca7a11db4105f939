#include "toolkit/fronts/terminal/chosen_path.h"

#include "toolkit/fronts/terminal/file_question.h"
#include "toolkit/fronts/terminal/screen_text.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace tavrik::front::terminal {
namespace {

class ChosenPath : public testing::Test {
protected:
    ChosenPath() {
        std::string pattern = testing::TempDir() + "chosen-path-XXXXXX";
        folder = ::mkdtemp(pattern.data());
    }
    ~ChosenPath() override { std::filesystem::remove_all(folder); }

    std::string make_file(const std::string& name) const {
        std::ofstream(folder + '/' + name) << "map";
        return folder + '/' + name;
    }

    std::string folder;
};

TEST_F(ChosenPath, A_path_becomes_absolute_and_is_otherwise_kept) {
    const std::string here = std::filesystem::current_path();
    const std::string home = std::getenv("HOME");
    EXPECT_EQ(absolute_path("/a/../b ", "/maps"), "/a/../b ");
    EXPECT_EQ(absolute_path("b\xFF.map", "/maps"), "/maps/b\xFF.map");
    EXPECT_EQ(absolute_path("b", ""), here + "/b");
    EXPECT_EQ(absolute_path("b", "maps"), here + "/maps/b");
    EXPECT_EQ(absolute_path("~/b", "/maps"), home + "/b");
    EXPECT_EQ(absolute_path("~b", "/maps"), "/maps/~b");
}

TEST_F(ChosenPath, Only_a_regular_file_can_be_chosen) {
    const std::string file = make_file("valley.map");
    const std::string fifo = folder + "/fifo";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    std::filesystem::create_symlink(file, folder + "/link");

    EXPECT_EQ(refusal_of(file), "");
    EXPECT_EQ(refusal_of(folder + "/link"), "");
    EXPECT_EQ(refusal_of(folder), "Is a directory");
    EXPECT_EQ(refusal_of(fifo), "Not a regular file");
    EXPECT_EQ(refusal_of(file + "/"), "Not a directory");
    EXPECT_EQ(refusal_of(folder + "/none"), "No such file or directory");
    EXPECT_EQ(refusal_of(file + std::string("\0.bak", 5)), "No such file or directory");
}

TEST_F(ChosenPath, A_file_name_of_any_bytes_is_chosen_as_it_is) {
    for (const std::string name : {"\xE9t\xE9.map", " spaces ", "cr\r", "esc\x1b"}) {
        const FileChoice choice{.initial_folder = folder};
        FileQuestion question(choice);
        const std::string path = make_file(name);
        EXPECT_EQ(question.take(name), "");
        EXPECT_TRUE(question.ended());
        EXPECT_EQ(question.chosen(), path);
    }
}

TEST_F(ChosenPath, A_CR_that_belongs_to_no_file_name_ends_the_line) {
    const std::string path = make_file("valley.map");
    const FileChoice choice{.initial_folder = folder};
    FileQuestion chosen(choice);
    chosen.take("valley.map\r");
    EXPECT_EQ(chosen.chosen(), path);

    FileQuestion cancelled(choice);
    cancelled.take("\r");
    EXPECT_TRUE(cancelled.ended());
    EXPECT_EQ(cancelled.chosen(), std::nullopt);
}

TEST_F(ChosenPath, A_wrong_path_is_told_and_asked_again) {
    const FileChoice choice{.initial_folder = folder};
    FileQuestion question(choice);
    EXPECT_EQ(question.take("no\x1bne"),
              folder + "/no\\x1bne can't be chosen: No such file or directory\n" + kPathPrompt);
    EXPECT_FALSE(question.ended());
}

}  // namespace
}  // namespace tavrik::front::terminal
