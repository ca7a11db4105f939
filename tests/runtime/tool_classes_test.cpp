// The records of the classes that the tool builds at its start.
#include "maptool/app.h"
#include "maptool/menu_bar1.h"
#include "maptool/window1.h"
#include "runtime/signature.h"
#include "ui/quit_menu_item.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tavrik::test {
namespace {

std::int32_t accessors_of(const ClassRecord& record) {
    return static_cast<std::int32_t>(
        std::count_if(record.methods, record.methods + record.method_count, [](const MethodRecord& method) {
            const std::string_view name = view(method.name);
            return method.flags == 0 && (name.ends_with(".Get") || name.ends_with(".Set"));
        }));
}

struct ApplicationClass {
    const ClassRecord* record;
    std::int32_t own_methods;
    std::int32_t own_slots;
    std::string_view first_own;
};

TEST(ToolClasses, Of_the_application_count_the_accessors_of_their_parent_once_more) {
    const ApplicationClass classes[] = {
        {Window1::Window1::__Lookup(), 21, 18, "Layout"},
        {MenuBar1::MenuBar1::__Lookup(), 3, 2, "Untitled0"},
        {App::__Lookup(), 0, 0, ""},
    };
    for (const auto& [record, own_methods, own_slots, first_own] : classes) {
        const ClassRecord& parent = *record->parent;
        const std::int32_t first = parent.method_count + accessors_of(parent);
        EXPECT_EQ(record->method_count, first + own_methods) << view(record->name);
        EXPECT_EQ(record->vtable_size, parent.vtable_size + own_slots) << view(record->name);
        for (std::int32_t i = parent.method_count; i < first; ++i) EXPECT_EQ(record->methods[i].name, nullptr) << i;
        if (own_methods > 0) {
            EXPECT_EQ(view(record->methods[first].name), first_own);
        }
    }
}

TEST(ToolClasses, The_menu_bar_replaces_the_constructor_in_its_slot) {
    const ClassRecord& bar = *MenuBar1::MenuBar1::__Lookup();
    const std::int32_t slot = slot_of<pick<void()>(&MenuItem::Constructor)>;
    for (std::int32_t i = 0; i < bar.parent->vtable_size; ++i) {
        EXPECT_EQ(bar.vtable[i] != bar.parent->vtable[i], i == slot) << i;
    }
}

TEST(ToolClasses, The_quit_item_handles_its_action_and_has_another_one_free) {
    const ClassRecord& item = *QuitMenuItem::__Lookup();
    ASSERT_EQ(item.event_count, 3);
    EXPECT_EQ(view(item.events[0].name), "Action");
    EXPECT_NE(item.events[0].handler, nullptr);
    EXPECT_EQ(view(item.events[2].name), "Action");
    EXPECT_EQ(item.events[2].handler, nullptr);
    EXPECT_EQ(MenuItem::__Lookup()->events[0].handler, nullptr);
}

// What holds for every class, whichever there are.
void check(const ClassRecord& record) {
    SCOPED_TRACE(std::string(view(record.name)));
    EXPECT_FALSE(view(record.name).empty());
    if (record.is_interface != 0) return;
    const std::int32_t least_size =
        record.parent == nullptr ? std::int32_t{sizeof(Object)} : record.parent->instance_size;
    EXPECT_GE(record.instance_size, least_size);
    EXPECT_TRUE(std::none_of(record.vtable, record.vtable + record.vtable_size,
                             [](Function function) { return function == nullptr; }));
    for (std::int32_t i = 0; i < record.method_count; ++i) {
        const MethodRecord& method = record.methods[i];
        if (method.name == nullptr) continue;
        EXPECT_NE(method.function, nullptr) << view(method.name);
        EXPECT_TRUE(split_signature(view(method.signature))) << view(method.name) << " " << view(method.signature);
    }
    for (std::int32_t i = 0; i < record.event_count; ++i) EXPECT_FALSE(view(record.events[i].name).empty());
    for (std::int32_t i = 0; i < record.property_count; ++i) {
        const PropertyRecord& property = record.properties[i];
        std::string_view rest = view(property.type_code);
        EXPECT_TRUE(take_type_code(rest, ByReference::kNotAllowed) && rest.empty()) << view(property.name);
        EXPECT_EQ(property.setter != nullptr, (property.flags & kWritable) != 0) << view(property.name);
        EXPECT_TRUE(property.getter != nullptr || property.setter != nullptr) << view(property.name);
    }
}

TEST(ToolClasses, All_have_complete_records) {
    for (const ClassRecord* record = RuntimeGetClassList(); record != nullptr; record = record->next) check(*record);
}

}  // namespace
}  // namespace tavrik::test
