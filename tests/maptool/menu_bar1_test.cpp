#include "maptool/menu_bar1.h"

#include "maptool/window1.h"
#include "tests/maptool/run_tool.h"
#include "ui/quit_menu_item.h"

namespace tavrik {
namespace {

class ToolMenus : public ToolTest {};

struct Item {
    std::string_view name;
    std::string_view class_name;
    std::string_view text;
    std::string_view shortcut;
};

constexpr Item kBar[] = {{"FileMenu", "MenuItem", "&File", ""}, {"EditMenu", "MenuItem", "&Edit", ""}};
constexpr Item kFile[] = {{"FileQuit", "QuitMenuItem", "&Quit", "Cmd+Q"}};
constexpr Item kEdit[] = {
    {"EditUndo", "MenuItem", "&Undo", "Cmd+Z"},   {"UntitledMenu1", "MenuItem", "-", ""},
    {"EditCut", "MenuItem", "Cu&t", "Cmd+X"},     {"EditCopy", "MenuItem", "&Copy", "Cmd+C"},
    {"EditPaste", "MenuItem", "&Paste", "Cmd+V"}, {"EditClear", "MenuItem", "&Delete", ""},
    {"UntitledMenu0", "MenuItem", "-", ""},       {"EditSelectAll", "MenuItem", "Select &All", "Cmd+A"},
};

void expect_items(const Ref<MenuItem>& parent, std::span<const Item> items) {
    ASSERT_EQ(parent->Count(), static_cast<std::int32_t>(items.size()));
    for (std::int32_t i = 0; const Item& expected : items) {
        const Ref<MenuItem> item = parent->Item(i++);
        EXPECT_EQ(item->Name().view(), expected.name);
        EXPECT_EQ(view(item->record->name), expected.class_name) << expected.name;
        EXPECT_EQ(item->Text().view(), expected.text) << expected.name;
        EXPECT_EQ(item->KeyboardShortcut().view(), expected.shortcut) << expected.name;
        EXPECT_TRUE(item->AutoEnable()) << expected.name;
    }
}

TEST_F(ToolMenus, The_bar_holds_File_and_Edit_with_their_entries) {
    run_tool([](ScriptedFront&) {
        const Ref<MenuBar1::MenuBar1> bar = MenuBar1::MenuBar1_();
        expect_items(bar, kBar);
        expect_items(bar->Child("FileMenu"_s), kFile);
        expect_items(bar->Child("EditMenu"_s), kEdit);
    });
}

TEST_F(ToolMenus, A_second_call_of_the_accessor_returns_the_same_bar) {
    run_tool([](ScriptedFront&) {
        const Ref<MenuBar1::MenuBar1> bar = MenuBar1::MenuBar1_();
        const std::int64_t alive = RuntimeLiveObjects();
        EXPECT_EQ(MenuBar1::MenuBar1_(), bar);
        EXPECT_EQ(RuntimeLiveObjects(), alive);
    });
}

TEST_F(ToolMenus, Only_Quit_can_be_chosen_when_the_menus_open) {
    run_tool([](ScriptedFront& front) {
        front.window().open_menus();
        EXPECT_TRUE(front.window().menus.at(0).children.at(0).enabled);
        for (const front::MenuDescription& entry : front.window().menus.at(1).children) {
            EXPECT_EQ(entry.separator, entry.text == "-");
            EXPECT_TRUE(entry.separator || !entry.enabled) << entry.text;
        }
    });
}

TEST_F(ToolMenus, An_Edit_entry_does_nothing) {
    run_tool([](ScriptedFront& front) {
        front.window().choose("&Edit", "Select &All");
        EXPECT_EQ(front.messages, std::vector<std::string>{});
        EXPECT_EQ(front.times_quit, 0);
    });
}

TEST_F(ToolMenus, The_windows_accessors_return_the_items_of_their_names) {
    run_tool([](ScriptedFront&) {
        const Ref<Window1::Window1> window = Window1::Window1_();
        const std::pair<Ref<MenuItem>, std::string_view> items[] = {
            {window->FileMenu(), "FileMenu"},           {window->FileQuit(), "FileQuit"},
            {window->EditMenu(), "EditMenu"},           {window->EditUndo(), "EditUndo"},
            {window->UntitledMenu1(), "UntitledMenu1"}, {window->EditCut(), "EditCut"},
            {window->EditCopy(), "EditCopy"},           {window->EditPaste(), "EditPaste"},
            {window->EditClear(), "EditClear"},         {window->UntitledMenu0(), "UntitledMenu0"},
            {window->EditSelectAll(), "EditSelectAll"},
        };
        for (const auto& [item, name] : items) EXPECT_EQ(item->Name().view(), name);
    });
}

TEST_F(ToolMenus, An_accessor_of_a_window_without_its_bar_raises) {
    run_tool([](ScriptedFront&) {
        const Ref<Window1::Window1> window = Window1::Window1_();
        window->set_MenuBar(nullptr);
        EXPECT_THROW(window->FileMenu(), RaisedException);
    });
}

}  // namespace
}  // namespace tavrik
