#include "maptool/menu_bar1.h"

#include "maptool/window1.h"
#include "tests/maptool/run_tool.h"
#include "ui/quit_menu_item.h"

namespace tavrik {
namespace {

class ToolMenus : public ToolTest {};

TEST_F(ToolMenus, Its_menus_open_with_Quit_alone_to_be_chosen) {
    const std::vector<std::vector<std::string>> expected{
        {"&File", "&Quit Cmd+Q"},
        {"&Edit", "&Undo Cmd+Z off", "-", "Cu&t Cmd+X off", "&Copy Cmd+C off", "&Paste Cmd+V off", "&Delete off", "-",
         "Select &All Cmd+A off"},
    };
    run_tool([&](ScriptedFront& front) {
        front.window->listener.menus_opening();
        std::vector<std::vector<std::string>> shown;
        for (const front::MenuDescription& menu : front.window->menus) {
            shown.push_back({menu.text});
            for (const front::MenuDescription& entry : menu.children) {
                const std::string keys = entry.shortcut.empty() ? "" : ' ' + entry.shortcut;
                shown.back().push_back(entry.text + keys + (entry.separator || entry.enabled ? "" : " off"));
                EXPECT_EQ(entry.separator, entry.text == "-");
            }
        }
        EXPECT_EQ(shown, expected);
        front.window->choose(1, 7);
        EXPECT_EQ(front.messages, std::vector<std::string>{});
        EXPECT_EQ(front.times_quit, 0);
    });
}

TEST_F(ToolMenus, The_windows_accessors_return_the_items_of_their_names_and_raise_without_a_bar) {
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
        window->set_MenuBar(nullptr);
        EXPECT_THROW(window->FileMenu(), RaisedException);
    });
}

}  // namespace
}  // namespace tavrik
