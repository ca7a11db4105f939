// The records of the classes that the tool builds at its start.
#include "runtime/signature.h"

#include <tavrik/runtime.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tavrik::test {
namespace {

// What holds for every class, whichever there are.
void check(const ClassRecord& record) {
    SCOPED_TRACE(std::string(view(record.name)));
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
    for (std::int32_t i = 0; i < record.property_count; ++i) {
        const PropertyRecord& property = record.properties[i];
        std::string_view rest = view(property.type_code);
        EXPECT_TRUE(take_type_code(rest, ByReference::kNotAllowed) && rest.empty()) << view(property.name);
        if ((property.flags & kShared) != 0) continue;  // a global, without accessors
        EXPECT_EQ(property.setter != nullptr, (property.flags & kWritable) != 0) << view(property.name);
    }
}

TEST(ToolClasses, All_have_complete_records) {
    for (const ClassRecord* record = RuntimeGetClassList(); record != nullptr; record = record->next) check(*record);
}

}  // namespace
}  // namespace tavrik::test
