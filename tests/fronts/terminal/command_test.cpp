#include "toolkit/fronts/terminal/command.h"

#include <gtest/gtest.h>

namespace tavrik::front::terminal {
namespace {

TEST(Command, A_number_or_a_caption_names_a_control) {
    const ControlView controls[] = {
        {"Load Map", "", true}, {"Null BSP", "", false}, {"1", "", true}, {"40", "", true}, {"Null BSP", "", true},
    };
    const std::pair<const char*, std::optional<std::size_t>> cases[] = {
        {"1", 0},        {" 2 \r", 1}, {"5", 4},   {"  LOAD map\t", 0}, {"40", 3},  {"0", {}},
        {"6", {}},       {"-1", {}},   {"1.", {}}, {"Load  Map", {}},   {"  ", {}}, {"99999999999999999999", {}},
        {"null bsp", 4},  // the one of the two that can be used
    };
    for (const auto& [words, index] : cases) EXPECT_EQ(find_control(words, controls), index) << words;
    EXPECT_EQ(find_control("null bsp", std::span(controls).first(2)), 1U);
}

TEST(Command, A_whole_path_names_a_menu_entry) {
    const MenuEntry entries[] = {
        {1, "File", "Quit", true, false},
        {2, "Edit/Find", "Next", true, false},
        {3, "Edit", "On/Off", false, false},
    };
    const std::pair<const char*, MenuId> cases[] = {
        {" file/Quit\r", 1}, {"Edit/Find/Next", 2}, {"EDIT/on/off", 3}, {"Quit", 0},
        {"File", 0},         {"File/", 0},          {"Edit/Next", 0},
    };
    for (const auto& [words, id] : cases) {
        const MenuEntry* entry = find_entry(words, entries);
        EXPECT_EQ(entry == nullptr ? 0 : entry->id, id) << words;
    }
}

}  // namespace
}  // namespace tavrik::front::terminal
