#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"

#include <tavrik/runtime.h>

#include <cstring>

namespace tavrik::test {
namespace {

void some_function() {}

bool is_blank(const void* record, std::size_t size) {
    return std::string(static_cast<const char*>(record), size) == std::string(size, '\0');
}

TEST(ClassRecord, Starts_with_the_records_of_its_parent_and_is_blank_behind_them) {
    ClassRecord* const parent = RuntimeNewClass(nullptr, 2, 0, 1, 0, 1, 0);
    parent->name = String("Shape").release();
    parent->methods[1].name = String("Erase").release();
    parent->events[0] = {String("Drawn").release(), some_function};
    parent->properties[0].parameter = 48;

    ClassRecord* const child = RuntimeNewClass(parent, 5, 0, 3, 0, 2, 0);
    child->name = String("Circle").release();
    EXPECT_EQ(child->parent, parent);
    EXPECT_EQ(std::memcmp(child->methods, parent->methods, 2 * sizeof(MethodRecord)), 0);
    EXPECT_EQ(child->events[0].handler, some_function);
    EXPECT_EQ(child->properties[0].parameter, 48);
    EXPECT_EQ(parent->methods[1].name->count, 2) << "strings in a record are locked";
    EXPECT_TRUE(is_blank(child->methods + 2, 3 * sizeof(MethodRecord)));
    EXPECT_TRUE(is_blank(child->events + 1, 2 * sizeof(EventRecord)));
    EXPECT_TRUE(is_blank(child->properties + 1, sizeof(PropertyRecord)));
}

TEST(ClassNumbers, Count_the_classes_and_lead_back_to_them) {
    ClassRecord* const older = new_class("Older", nullptr, sizeof(Object));
    ClassRecord* const newer = new_class("Newer", nullptr, sizeof(Object));
    EXPECT_EQ(RuntimeClassNumber(newer), RuntimeClassNumber(older) + 1);
    EXPECT_EQ(RuntimeClassWithNumber(RuntimeClassNumber(older)), older);
    EXPECT_EQ(RuntimeGetClassList(), newer);
    EXPECT_EQ(newer->next, older);
    for (const std::int32_t unknown : {0, -1, RuntimeClassNumber(newer) + 1}) {
        EXPECT_EQ(RuntimeClassWithNumber(unknown), nullptr) << unknown;
    }
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
    Function operations_[1] = {some_function};
};

TEST_F(Casts, Pass_to_the_class_its_parents_and_their_interfaces) {
    const Ref<Object> circle = RuntimeNewObject(circle_);
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
    EXPECT_FALSE(RuntimeObjectIsa(nullptr, shape_));
    EXPECT_FALSE(RuntimeCheckCast(nullptr, shape_)) << "nil passes";
}

TEST_F(Casts, The_operations_of_an_interface_are_those_of_the_nearest_class_that_has_it) {
    const Ref<Object> circle = RuntimeNewObject(circle_);
    const Ref<Object> stone = RuntimeNewObject(stone_);
    EXPECT_EQ(RuntimeLookupInterfaceVtable(circle.object(), drawable_), operations_);
    const auto raised = raised_by([&] { RuntimeLookupInterfaceVtable(stone.object(), drawable_); });
    EXPECT_EQ(class_of(raised), "IllegalCastException");
    EXPECT_EQ(message_of(raised), "Stone does not implement Drawable");
}

}  // namespace
}  // namespace tavrik::test
