#include "tests/support/temporary_folder.h"
#include "toolkit/fronts/qt/file_filters.h"
#include "toolkit/fronts/qt/path_bytes.h"
#include "toolkit/fronts/qt/shortcut.h"
#include "toolkit/fronts/qt/text.h"

#include <gtest/gtest.h>

namespace tavrik::front::qt {
namespace {

TEST(QtShortcut, A_text_names_its_keys_or_is_no_shortcut) {
    const std::pair<const char*, QKeySequence> cases[] = {
        {"Cmd+Q", Qt::CTRL | Qt::Key_Q},
        {"cmd+shift+z", Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
        {"Option+Command+F5", Qt::ALT | Qt::CTRL | Qt::Key_F5},
        {"Shift+Control+Del", Qt::SHIFT | Qt::CTRL | Qt::Key_Delete},
        {"Cmd++", Qt::CTRL | Qt::Key_Plus},
        {"Esc", Qt::Key_Escape},
        {"s", Qt::CTRL | Qt::Key_S},
        {"F5", Qt::Key_F5},
    };
    for (const auto& [text, keys] : cases) EXPECT_EQ(to_shortcut(text), keys) << text;
    for (const char* text : {"", "Cmd+", "Cmd", "Hyper+Q", "Cmd+Nowhere", "Cmd+Q, Cmd+W"}) {
        EXPECT_TRUE(to_shortcut(text).isEmpty()) << text;
    }
}

TEST(QtText, A_mnemonic_is_no_part_of_the_name) {
    EXPECT_EQ(without_mnemonic(QStringLiteral("&Load && Save&")), QStringLiteral("Load & Save&"));
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
    for (const std::string path : {"/maps/M\xFCnchen.map", "/a b/100%/#1?.map", "/\xC3\xA4/%41"}) {
        EXPECT_EQ(to_path(to_url(path)), path);
    }
}

TEST(QtPathBytes, A_lossy_path_means_the_one_file_that_it_can_mean) {
    const test::TemporaryFolder folder;
    const std::string path = folder.new_file("M\xFCnchen.map", "x");
    folder.new_file("valley.map", "x");
    // What a dialog makes of a name that isn't UTF-8.
    const QUrl lossy = QUrl::fromLocalFile(to_qt(path));
    EXPECT_EQ(to_path(lossy), path);
    folder.new_file("M\xFEnchen.map", "x");
    EXPECT_EQ(to_path(lossy), folder.file("M\xEF\xBF\xBDnchen.map"));
}

}  // namespace
}  // namespace tavrik::front::qt
