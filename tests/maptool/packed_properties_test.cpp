#include "maptool/packed_properties.h"

#include "maptool/window1_properties.h"

#include <gtest/gtest.h>

#include <limits>
#include <string_view>

namespace tavrik {
namespace {

using namespace std::string_view_literals;

TEST(PackedProperties, The_windows_string_is_entries_of_name_blank_and_value) {
    EXPECT_EQ(Window1::window_properties().view(),
              "Placement \0\0\0\0Width \0\0\1\x22Height \0\0\0\x77MinWidth \0\0\0\x40MinHeight \0\0\0\x40"
              "MaxWidth \0\0\x7D\0MaxHeight \0\0\x7D\0"
              "Frame \0\0\0\0Composite \0HasBackColor \0BackColor \xFF\xFF\xFFTitle \0\0\0\0"
              "Visible \1FullScreen \0MenuBarVisible \1CloseButton \1Resizeable \0LiveResize \1"
              "MaximizeButton \0MinimizeButton \1BalloonHelp \0\0\0\0MacProcID \0\0\0\0"sv);
}

struct ButtonString {
    const String& (*packed)();
    std::string_view head;  // from the name to the height
    std::string_view rest;  // from the tab index to whether it is enabled
};

TEST(PackedProperties, A_buttons_string_differs_in_six_entries) {
    const ButtonString buttons[] = {
        {Window1::load_map_properties,
         "Name \0\0\0\x0BPushButton1Index \x80\0\0\0Left \0\0\0\x14Top \0\0\0\x0EWidth \0\0\0\x50"sv,
         "TabIndex \0\0\0\0Caption \0\0\0\x08Load MapDefault \0Cancel \0Enabled \1"sv},
        {Window1::null_bsp_properties,
         "Name \0\0\0\7NullBSPIndex \x80\0\0\0Left \0\0\0\x14Top \0\0\0\x2EWidth \0\0\0\xFA"sv,
         "TabIndex \0\0\0\1Caption \0\0\0\x08Null BSPDefault \0Cancel \0Enabled \0"sv},
        {Window1::undo_null_properties,
         "Name \0\0\0\4UndoIndex \x80\0\0\0Left \0\0\0\x14Top \0\0\0\x4EWidth \0\0\0\xFA"sv,
         "TabIndex \0\0\0\2Caption \0\0\0\x0AUn-do NullDefault \0Cancel \0Enabled \0"sv},
    };
    for (const ButtonString& button : buttons) {
        std::string expected(button.head);
        expected += "Height \0\0\0\x14LockLeft \0LockTop \0LockRight \0LockBottom \0TabPanelIndex \0\0\0\0"sv;
        expected += button.rest;
        expected += "Visible \1HelpTag \0\0\0\0AutoDeactivate \1TextFont \0\0\0\6SystemTextSize \0\0\0\0"sv;
        expected += "Bold \0Italic \0Underline \0InitialParent \0\0\0\0"sv;
        EXPECT_EQ(button.packed().view(), expected);
    }
}

TEST(PackedProperties, A_value_holds_any_byte_and_every_length) {
    static constexpr std::array kEntries{
        maptool::entry("Blank", 0x20202020),
        maptool::entry("Lowest", std::numeric_limits<std::int32_t>::min()),
        maptool::entry("Text", "two words"),
        maptool::entry("Color", rgb(0x20, 0x00, 0xFF)),
    };
    EXPECT_EQ(maptool::packed<kEntries>.string().view(),
              "Blank \x20\x20\x20\x20"
              "Lowest \x80\0\0\0"
              "Text \0\0\0\x09two words"
              "Color \x20\0\xFF"sv);
}

}  // namespace
}  // namespace tavrik
