#include "toolkit/fronts/terminal/screen_text.h"

#include "toolkit/fronts/terminal/menu_entries.h"

#include <gtest/gtest.h>

namespace tavrik::front::terminal {
namespace {

TEST(ScreenText, A_window_shows_its_title_its_menus_and_its_numbered_controls) {
    const MenuDescription bar[] = {
        {.text = "&File", .children = {{.text = "&Quit"}}},
        {.text = "&Edit",
         .children = {{.text = "&Undo", .enabled = false},
                      {.text = "&More", .enabled = false, .children = {{.text = "Deep"}}},
                      {.text = "-", .separator = true},
                      {.text = "&Grid", .checked = true},
                      {.text = "Secret", .visible = false},
                      {.text = "Snap", .enabled = false, .checked = true}}},
        {.text = "Empty"},
    };
    const WindowView window{"maptool", menu_entries(bar), {{"Load Map", "", true}, {"Name", "valley", false}, {}}};
    EXPECT_EQ(window_text(window),
              "maptool\n"
              "File: Quit\n"
              "Edit: Undo (off), Grid (checked), Snap (checked, off)\n"
              "Edit/More: Deep (off)\n"
              "1. Load Map\n"
              "2. Name: valley (off)\n"
              "3.\n");
}

TEST(ScreenText, A_message_shows_its_texts_and_its_buttons) {
    const MessageDescription message{.title = "Quit",
                                     .text = "Save\x1b?\nIt has changed.\r\n\rReally.\n",
                                     .explanation = "Or not",
                                     .buttons = {"&Save", "Cancel"},
                                     .default_button = 1};
    EXPECT_EQ(message_text(message),
              "Quit\n"
              "Save\\x1b?\n    It has changed.\n\n    Really.\n"
              "Or not\n"
              "Buttons: Save, Cancel (default)\n");
}

TEST(ScreenText, A_file_choice_shows_what_is_asked) {
    const FileChoice choice{.title = "Open",
                            .prompt = "Which map?",
                            .initial_folder = "/maps\n",
                            .filters = {{"Maps", {"map", "bsp"}}, {"Texts", {}}}};
    EXPECT_EQ(file_choice_text(choice),
              "Open\n"
              "Which map?\n"
              "Files: Maps (*.map, *.bsp), Texts, All files\n"
              "Folder: /maps\\n\n"
              "Path, or an empty line to cancel:\n");
}

TEST(ScreenText, A_file_choice_shows_its_captions_and_the_suggested_name) {
    const FileChoice choice{.action_caption = "&Load", .cancel_caption = "Lea&ve", .suggested_name = "a\n.map"};
    EXPECT_EQ(file_choice_text(choice), "Suggested: a\\n.map\nLoad: path, or an empty line for Leave:\n");
    EXPECT_EQ(path_prompt({.action_caption = "Load"}), "Load: path, or an empty line to cancel:\n");
}

}  // namespace
}  // namespace tavrik::front::terminal
