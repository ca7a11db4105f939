// How many records of each kind a complete class has of its own, and how many slots in all.
#include <tavrik/class_record.h>

#include <gtest/gtest.h>

namespace tavrik::test {
namespace {

struct Totals {
    const char* name;
    std::int32_t methods;
    std::int32_t slots;
    std::int32_t properties;
    std::int32_t events = 0;
};

constexpr Totals kTotals[] = {
    {"RuntimeException", 7, 1, 2},
    {"NilObjectException", 0, 1, 0},
    {"Pair", 3, 1, 4},
    {"Dictionary", 16, 11, 2},
    {"FileType", 17, 15, 5},
    {"Control", 18, 3, 14, 3},
    {"RectControl", 58, 25, 19, 11},
    {"PushButton", 28, 35, 8, 5},
    {"Canvas", 23, 33, 6, 7},
    {"PagePanel", 12, 30, 3, 1},
    {"TabPanel", 32, 40, 10, 5},
    {"EmbeddedWindowControl", 17, 48, 0, 0},
    {"_Pane", 66, 42, 34},
    {"FolderItem", 87, 43, 32},
    {"Permissions", 26, 1, 12},
    {"VirtualVolume", 3, 0, 1},
    {"BinaryStream", 53, 44, 4},
    {"TextOutputStream", 13, 8, 2},
    {"TextInputStream", 15, 8, 3},
    {"MemoryBlock", 63, 57, 2},
    {"Date", 34, 4, 18},
    {"Thread", 13, 6, 4, 1},
    {"TextEncoding", 8, 3, 5},
    {"_Pollable", 0, 0, 0},
    {"Application", 47, 17, 21, 10},
    {"App", 28, 17, 0},  // blank, in place of the accessors
    {"FolderItemDialog", 25, 3, 11},
    {"OpenDialog", 1, 3, 0},
    {"MenuItem", 55, 21, 21, 2},
    {"MenuBar", 2, 22, 0},
    {"PrefsMenuItem", 1, 22, 0, 1},
    {"AppleMenuItem", 0, 21, 0},
    {"QuitMenuItem", 1, 22, 0, 1},
    {"MessageDialogButton", 10, 0, 5},
    {"_ActionButton", 0, 0, 0},
    {"_CancelButton", 0, 0, 0},
    {"_AlternateActionButton", 0, 0, 0},
    {"MessageDialog", 19, 3, 8},
    {"_VariantBoolean", 10, 10, 0},
    {"_VariantColor", 10, 10, 0},
    {"_VariantCurrency", 10, 10, 0},
    {"_VariantDouble", 11, 11, 0},
    {"_VariantSingle", 11, 11, 0},
    {"_VariantInt32", 12, 12, 0},
    {"_VariantUInt32", 12, 12, 0},
    {"_VariantInt64", 12, 12, 0},
    {"_VariantUInt64", 12, 12, 0},
    {"_VariantString", 18, 16, 0},
    {"_VariantCString", 13, 13, 0},
    {"_VariantPString", 13, 13, 0},
    {"_VariantWString", 13, 13, 0},
    {"_VariantCFStringRef", 13, 13, 0},
    {"_VariantPtr", 7, 7, 0},
    {"_VariantOSType", 7, 7, 0},
    {"_VariantWindowPtr", 3, 3, 0},
    {"_VariantStructure", 4, 2, 0},
    {"Window", 128, 46, 47, 31},
    {"ContainerControl", 48, 49, 18, 2},
    {"MDIWindow", 26, 3, 11, 6},
    {"_MouseCursorImp", 0, 0, 0},
    {"MouseCursor", 2, 0, 1},
    {"Introspection.MemberInfo", 4, 3, 5},
    {"Introspection.TypeInfo", 17, 10, 24},
    {"Introspection.ValueTypeInfo", 1, 10, 0},
    {"Introspection.PrimitiveTypeInfo", 1, 11, 0},
    {"Introspection.PointerTypeInfo", 1, 11, 0},
    {"Introspection.StructureInfo", 1, 11, 0},
    {"Introspection.EnumInfo", 1, 11, 0},
    {"Introspection.VariantInfo", 1, 10, 0},
    {"Introspection.StringInfo", 1, 10, 0},
    {"Introspection.ClassInfo", 5, 10, 3},
    {"Introspection.ArrayInfo", 5, 10, 3},
    {"Introspection.MethodBase", 3, 5, 6},
    {"Introspection.MethodInfo", 3, 7, 1},
    {"Introspection.MethodInfoImp", 1, 7, 0},
    {"Introspection.ConstructorInfo", 1, 6, 0},
    {"Introspection.ConstructorInfoImp", 1, 6, 0},
    {"Introspection.PropertyInfo", 6, 5, 9},
    {"Introspection.PropertyInfoImp", 1, 5, 0},
    {"Introspection.ParameterInfo", 3, 1, 5},
    {"Introspection.ParameterInfoImp", 1, 1, 0},
    {"Introspection.AttributeInfo", 1, 1, 2},
};

TEST(Records, Are_as_many_as_each_class_declares) {
    for (const auto& [name, methods, slots, properties, events] : kTotals) {
        SCOPED_TRACE(name);
        const ClassRecord* const record = RuntimeFindClass(name);
        if (record == nullptr) {
            ADD_FAILURE() << "there is no such class";
            continue;
        }
        const ClassRecord none{};
        const ClassRecord& parent = record->parent == nullptr ? none : *record->parent;
        EXPECT_EQ(record->method_count - parent.method_count, methods);
        EXPECT_EQ(record->vtable_size, slots);
        EXPECT_EQ(record->property_count - parent.property_count, properties);
        EXPECT_EQ(record->event_count - parent.event_count, events);
    }
}

}  // namespace
}  // namespace tavrik::test
