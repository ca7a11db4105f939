#include "maptool/window1.h"

#include "data/binary_stream.h"
#include "data/folder_item.h"
#include "tests/maptool/run_tool.h"
#include "ui/push_button.h"
#include "ui/quit_menu_item.h"

#include <algorithm>

namespace tavrik {
namespace {

class ToolWindow : public ToolTest {};

TEST_F(ToolWindow, It_and_its_buttons_are_shown_as_declared) {
    run_tool([](ScriptedFront& front) {
        const front::WindowDescription& window = front.window->description;
        EXPECT_EQ(window.title, "");
        EXPECT_EQ(window.content, (front::Rect{0, 0, 290, 119}));
        EXPECT_TRUE(window.close_button && window.minimize_button && window.menu_bar_visible);
        EXPECT_FALSE(window.resizable || window.maximize_button || window.full_screen);
        const front::ButtonDescription expected[] = {
            {{.name = "PushButton1", .bounds = {20, 14, 80, 20}, .tab_index = 0}, "Load Map"},
            {{.name = "NullBSP", .bounds = {20, 46, 250, 20}, .tab_index = 1, .enabled = false}, "Null BSP"},
            {{.name = "Undo", .bounds = {20, 78, 250, 20}, .tab_index = 2, .enabled = false}, "Un-do Null"},
        };
        ASSERT_EQ(front.window->content.controls.size(), std::size(expected));
        for (std::size_t i = 0; i < std::size(expected); ++i) {
            const auto& shown = dynamic_cast<ShownButton&>(*front.window->content.controls[i]).description;
            EXPECT_EQ(shown.name, expected[i].name);
            EXPECT_EQ(shown.caption, expected[i].caption);
            EXPECT_EQ(shown.bounds, expected[i].bounds) << shown.name;
            EXPECT_EQ(shown.tab_index, expected[i].tab_index) << shown.name;
            EXPECT_EQ(shown.enabled, expected[i].enabled) << shown.name;
            EXPECT_TRUE(shown.visible && !shown.is_default && !shown.is_cancel) << shown.name;
            EXPECT_EQ(shown.style, front::TextStyle{.font = "System"}) << shown.name;
        }
    });
}

TEST_F(ToolWindow, Its_accessors_return_the_one_window_and_the_buttons_of_the_names) {
    run_tool([](ScriptedFront&) {
        const Ref<Window1::Window1> window = Window1::Window1_();
        EXPECT_EQ(RuntimeLiveObjects(Window1::Window1::__Lookup()), 1);
        EXPECT_EQ(window->PushButton1("PushButton1"_s)->Caption().view(), "Load Map");
        EXPECT_EQ(window->NullBSP("NullBSP"_s)->Caption().view(), "Null BSP");
        EXPECT_EQ(window->Undo("Undo"_s)->Caption().view(), "Un-do Null");
    });
}

// The records that a class adds behind those that it inherits; what has no name is a gap.
template <class Record>
std::vector<Record> own_records(const Record* all, std::int32_t count, std::int32_t inherited) {
    std::vector<Record> own(all + inherited, all + count);
    std::erase_if(own, [](const Record& record) { return record.name == nullptr; });
    return own;
}

TEST(ToolWindowRecord, It_lists_its_methods_in_their_order) {
    const ClassRecord& record = *Window1::Window1::__Lookup();
    const std::string_view expected[] = {
        "Layout",          "CreateControls", "_CreateControls0",   "PushButton1",
        "NullBSP",         "Undo",           "PushButton1_Action", "NullBSP_Action",
        "Undo_Action",     "EditMenu",       "EditSelectAll",      "UntitledMenu0",
        "EditClear",       "EditPaste",      "EditCopy",           "EditCut",
        "UntitledMenu1",   "EditUndo",       "FileMenu",           "FileQuit",
        "AddMenuHandlers",
    };
    const auto methods = own_records(record.methods, record.method_count, record.parent->method_count);
    ASSERT_EQ(methods.size(), std::size(expected));
    for (std::size_t i = 0; i < methods.size(); ++i) {
        EXPECT_EQ(view(methods[i].name), expected[i]);
        EXPECT_EQ(methods[i].flags, kPublic) << expected[i];
    }
}

TEST(ToolWindowRecord, Its_control_accessors_are_one_function_and_no_operations) {
    const ClassRecord& record = *Window1::Window1::__Lookup();
    const auto methods = own_records(record.methods, record.method_count, record.parent->method_count);
    const std::span vtable(record.vtable, static_cast<std::size_t>(record.vtable_size));
    EXPECT_EQ(record.vtable_size, record.parent->vtable_size + 18);
    ASSERT_GE(methods.size(), 6U);
    for (const MethodRecord& accessor : std::span(methods).subspan(3, 3)) {
        EXPECT_EQ(view(accessor.signature), "%o<PushButton>%s");
        EXPECT_EQ(accessor.function, reinterpret_cast<Function>(&RuntimeWindowControlByName));
        EXPECT_EQ(std::ranges::count(vtable, accessor.function), 0);
    }
}

TEST(ToolWindowRecord, It_handles_the_first_three_events_of_a_window) {
    const ClassRecord& record = *Window1::Window1::__Lookup();
    for (std::int32_t i = 0; i < record.event_count; ++i) {
        EXPECT_EQ(record.events[i].handler != nullptr, i < 3) << view(record.events[i].name);
    }
}

TEST(ToolWindowRecord, Its_file_and_its_stream_are_public_properties) {
    const ClassRecord& record = *Window1::Window1::__Lookup();
    const auto properties = own_records(record.properties, record.property_count, record.parent->property_count);
    ASSERT_EQ(properties.size(), 2U);
    EXPECT_EQ(view(properties[0].name), "f");
    EXPECT_EQ(view(properties[1].name), "br");
    for (const PropertyRecord& property : properties) EXPECT_EQ(property.flags, kPublic | kWritable);
}

}  // namespace
}  // namespace tavrik
