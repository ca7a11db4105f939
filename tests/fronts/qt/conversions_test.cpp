#include "tests/fronts/qt/temporary_folder.h"
#include "toolkit/fronts/qt/file_filters.h"
#include "toolkit/fronts/qt/path_bytes.h"
#include "toolkit/fronts/qt/shortcut.h"
#include "toolkit/fronts/qt/text.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tavrik::front::qt {
namespace {

struct ShortcutCase {
    const char* text;
    QKeySequence expected;
};

TEST(QtShortcut, A_text_names_its_keys) {
    const ShortcutCase cases[] = {
        {"Cmd+Q", Qt::CTRL | Qt::Key_Q},
        {"cmd+shift+z", Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
        {"Option+Command+F5", Qt::ALT | Qt::CTRL | Qt::Key_F5},
        {"Shift+Control+Del", Qt::SHIFT | Qt::CTRL | Qt::Key_Delete},
        {"Cmd++", Qt::CTRL | Qt::Key_Plus},
        {"F1", Qt::Key_F1},
        {"Esc", Qt::Key_Escape},
    };
    for (const ShortcutCase& c : cases) EXPECT_EQ(to_shortcut(c.text), c.expected) << c.text;
}

TEST(QtShortcut, What_names_no_key_is_no_shortcut) {
    for (const char* text : {"", "Cmd+", "Cmd", "Hyper+Q", "Cmd+Nowhere", "Cmd+Q, Cmd+W"}) {
        EXPECT_TRUE(to_shortcut(text).isEmpty()) << text;
    }
}

TEST(QtText, A_mnemonic_is_no_part_of_the_name) {
    EXPECT_EQ(without_mnemonic(QStringLiteral("&Load Map")), QStringLiteral("Load Map"));
    EXPECT_EQ(without_mnemonic(QStringLiteral("Null && Void")), QStringLiteral("Null & Void"));
    EXPECT_EQ(without_mnemonic(QStringLiteral("Odd&")), QStringLiteral("Odd&"));
}

TEST(QtText, A_tool_tip_shows_markup_as_it_stands) {
    EXPECT_EQ(as_plain_tool_tip(QStringLiteral("Loads a map")), QStringLiteral("Loads a map"));
    EXPECT_TRUE(as_plain_tool_tip(QStringLiteral("<b>bold</b>")).contains(QStringLiteral("&lt;b&gt;")));
}

TEST(QtFileFilters, Each_letter_matches_in_either_case_and_all_files_come_last) {
    const FileFilter filters[] = {{"Maps (old)", {"map", "bsp2"}}, {"Anything", {}}};
    const QStringList expected{QStringLiteral("Maps (old) (*.[mM][aA][pP] *.[bB][sS][pP]2)"),
                               QStringLiteral("Anything (*)"), QStringLiteral("All files (*)")};
    EXPECT_EQ(to_name_filters(filters), expected);
}

TEST(QtPathBytes, A_path_comes_back_byte_for_byte) {
    for (const std::string path : {"/maps/valley.map", "/maps/M\xFCnchen.map", "/a b/100%/#1?.map", "/\xC3\xA4/%41"}) {
        EXPECT_EQ(to_path(to_url(path)), path);
    }
}

class QtLossyPath : public ::testing::Test {
protected:
    void add(const std::string& name) { std::ofstream(path(name)).put('x'); }
    std::string path(const std::string& name) const { return folder_.path() + '/' + name; }
    // What a dialog makes of a name that isn't UTF-8.
    std::string read_back(const std::string& name) const { return to_path(QUrl::fromLocalFile(to_qt(path(name)))); }

private:
    TemporaryFolder folder_;
};

TEST_F(QtLossyPath, The_one_file_that_can_be_meant_is_found) {
    add("M\xFCnchen.map");
    add("valley.map");
    EXPECT_EQ(read_back("M\xFCnchen.map"), path("M\xFCnchen.map"));
}

TEST_F(QtLossyPath, Between_two_files_none_is_picked) {
    add("M\xFCnchen.map");
    add("M\xFEnchen.map");
    EXPECT_EQ(read_back("M\xFCnchen.map"), path("M\xEF\xBF\xBDnchen.map"));
}

}  // namespace
}  // namespace tavrik::front::qt
