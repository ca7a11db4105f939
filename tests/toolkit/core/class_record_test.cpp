#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"

#include <tavrik/runtime.h>

#include <cstddef>
#include <cstring>

namespace tavrik::test {
namespace {

void first_function() {}
void second_function() {}

bool is_blank(const void* record, std::size_t size) {
    const auto* const bytes = static_cast<const unsigned char*>(record);
    return std::all_of(bytes, bytes + size, [](unsigned char byte) { return byte == 0; });
}

TEST(ClassRecord, Starts_with_the_records_of_its_parent_and_is_blank_behind_them) {
    ClassRecord* const parent = RuntimeNewClass(nullptr, 2, 0, 1, 0, 1, 0);
    parent->name = String("Shape").release();
    parent->methods[0].name = String("Draw").release();
    parent->methods[1].name = String("Erase").release();
    parent->methods[1].function = first_function;
    parent->events[0] = {String("Drawn").release(), second_function};
    parent->properties[0].name = String("Width").release();
    parent->properties[0].parameter = 48;

    ClassRecord* const child = RuntimeNewClass(parent, 5, 0, 3, 0, 2, 0);
    child->name = String("Circle").release();
    EXPECT_EQ(child->parent, parent);
    EXPECT_EQ(child->method_count, 5);
    EXPECT_EQ(std::memcmp(child->methods, parent->methods, 2 * sizeof(MethodRecord)), 0);
    EXPECT_EQ(child->events[0].handler, second_function);
    EXPECT_EQ(child->properties[0].parameter, 48);
    EXPECT_EQ(parent->methods[0].name->count, 2) << "strings in a record are locked";
    EXPECT_TRUE(is_blank(child->methods + 2, 3 * sizeof(MethodRecord)));
    EXPECT_TRUE(is_blank(child->events + 1, 2 * sizeof(EventRecord)));
    EXPECT_TRUE(is_blank(child->properties + 1, sizeof(PropertyRecord)));
}

TEST(ClassRecord, An_attribute_table_belongs_to_the_member_at_its_offset) {
    ClassRecord* const record = RuntimeNewClass(nullptr, 2, 0, 0, 0, 1, 0);
    record->name = String("Attributed").release();
    AttributeEntry* const entries = RuntimeAllocateAttributeTable(record->methods, sizeof(MethodRecord), 2);
    EXPECT_EQ(record->methods[0].attribute_count, 0);
    EXPECT_EQ(record->methods[1].attribute_count, 2);
    EXPECT_EQ(record->methods[1].attributes, entries);
    for (const AttributeEntry& entry : {entries[0], entries[1]}) {
        EXPECT_EQ(entry.name, nullptr);
        EXPECT_EQ(entry.value, nullptr);
        EXPECT_EQ(entry.value_flag, 0);
    }
    EXPECT_EQ(RuntimeAllocateAttributeTable(record->properties, 0, 0), nullptr);
    EXPECT_EQ(record->properties[0].attribute_count, 0);
}

TEST(ClassNumbers, Count_the_classes_and_lead_back_to_them) {
    ClassRecord* const older = new_class("Older", nullptr, sizeof(Object));
    ClassRecord* const newer = new_class("Newer", nullptr, sizeof(Object));
    EXPECT_EQ(RuntimeClassNumber(newer), RuntimeClassNumber(older) + 1);
    EXPECT_EQ(RuntimeClassWithNumber(RuntimeClassNumber(older)), older);
    EXPECT_EQ(RuntimeClassNumber(nullptr), 0);
    for (const std::int32_t unknown : {0, -1, INT32_MIN, INT32_MAX, RuntimeClassNumber(newer) + 1}) {
        EXPECT_EQ(RuntimeClassWithNumber(unknown), nullptr) << unknown;
    }
}

TEST(ClassList, Leads_from_the_newest_to_the_oldest) {
    ClassRecord* const older = new_class("Older", nullptr, sizeof(Object));
    ClassRecord* const newer = new_class("Newer", nullptr, sizeof(Object));
    EXPECT_EQ(RuntimeGetClassList(), newer);
    EXPECT_EQ(newer->next, older);
    std::int32_t number = RuntimeClassNumber(newer);
    for (const ClassRecord* record = newer->next; record != nullptr; record = record->next) {
        EXPECT_LT(RuntimeClassNumber(record), number);
        number = RuntimeClassNumber(record);
    }
}

TEST(ClassList, Holds_no_class_that_the_toolkit_makes_for_itself) {
    const Ref<Array> array = CreateArray(1, 4, -1);
    for (const ClassRecord* record = RuntimeGetClassList(); record != nullptr; record = record->next) {
        EXPECT_NE(record, array->record);
    }
}

TEST(LiveObjects, Are_counted_by_class) {
    ClassRecord* const one = new_class("One", nullptr, sizeof(Object));
    ClassRecord* const other = new_class("Other", one, sizeof(Object));
    const std::int64_t before = RuntimeLiveObjects();
    {
        const Ref<Object> first = RuntimeNewObject(one);
        const Ref<Object> second = RuntimeNewObject(other);
        const Ref<Object> third = RuntimeNewObject(other);
        EXPECT_EQ(RuntimeLiveObjects(one), 1);
        EXPECT_EQ(RuntimeLiveObjects(other), 2);
        EXPECT_EQ(RuntimeLiveObjects(), before + 3);
    }
    EXPECT_EQ(RuntimeLiveObjects(other), 0);
    EXPECT_EQ(RuntimeLiveObjects(), before);
}

// Shape implements Drawable; Circle is a Shape.
class Casts : public testing::Test {
protected:
    Casts() {
        drawable_->is_interface = 1;
        shape_->name = String("Shape").release();
        shape_->instance_size = sizeof(Object);
        shape_->interfaces()[0] = {drawable_, 1, operations_};
    }

    Balance balance_;
    ClassRecord* drawable_ = new_class("Drawable", nullptr, 0);
    ClassRecord* sizeable_ = new_class("Sizeable", nullptr, 0);
    ClassRecord* shape_ = RuntimeNewClass(nullptr, 0, 1, 0, 0, 0, 0);
    ClassRecord* circle_ = new_class("Circle", shape_, sizeof(Object));
    ClassRecord* stone_ = new_class("Stone", nullptr, sizeof(Object));
    Function operations_[1] = {first_function};
};

TEST_F(Casts, Pass_to_the_class_its_parents_and_their_interfaces) {
    const Ref<Object> circle = RuntimeNewObject(circle_);
    EXPECT_EQ(RuntimeClassOf(circle.object()), circle_);
    for (const ClassRecord* record : {circle_, shape_, drawable_}) {
        EXPECT_TRUE(RuntimeObjectIsa(circle.object(), record)) << view(record->name);
        EXPECT_EQ(RuntimeCheckCast(circle.object(), record), circle) << view(record->name);
    }
    EXPECT_EQ(circle->count, 1);
    EXPECT_EQ(RuntimeCheckCast(circle.object(), shape_)->count, 2) << "the result has a count of its own";
}

TEST_F(Casts, To_anything_else_raise_and_name_both_classes) {
    const Ref<Object> shape = RuntimeNewObject(shape_);
    for (const ClassRecord* record : {circle_, stone_, sizeable_}) {
        EXPECT_FALSE(RuntimeObjectIsa(shape.object(), record)) << view(record->name);
        const Ref<Object> raised = raised_by([&] { RuntimeCheckCast(shape.object(), record); });
        EXPECT_EQ(class_of(raised), "IllegalCastException");
        EXPECT_EQ(message_of(raised), "Shape is no " + std::string(view(record->name)));
    }
    EXPECT_EQ(class_raised_by([&] { RuntimeCheckCast(shape.object(), nullptr); }), "IllegalCastException");
}

TEST_F(Casts, Nil_passes_a_cast_and_is_of_no_class) {
    EXPECT_FALSE(RuntimeObjectIsa(nullptr, shape_));
    EXPECT_FALSE(RuntimeObjectIsa(nullptr, nullptr));
    EXPECT_FALSE(RuntimeCheckCast(nullptr, shape_));
    EXPECT_EQ(RuntimeClassOf(nullptr), nullptr);
}

TEST_F(Casts, The_operations_of_an_interface_are_those_of_the_nearest_class_that_has_it) {
    const Ref<Object> circle = RuntimeNewObject(circle_);
    const Ref<Object> stone = RuntimeNewObject(stone_);
    EXPECT_EQ(RuntimeLookupInterfaceVtable(circle.object(), drawable_), operations_);
    const auto raised = raised_by([&] { RuntimeLookupInterfaceVtable(stone.object(), drawable_); });
    EXPECT_EQ(class_of(raised), "IllegalCastException");
    EXPECT_EQ(message_of(raised), "Stone does not implement Drawable");
    EXPECT_EQ(class_raised_by([&] { RuntimeLookupInterfaceVtable(nullptr, drawable_); }), "NilObjectException");
}

}  // namespace
}  // namespace tavrik::test
