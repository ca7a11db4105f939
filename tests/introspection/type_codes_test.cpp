#include "introspection/type_codes.h"

#include "data/dictionary.h"
#include "introspection/array_info.h"
#include "introspection/class_info.h"
#include "introspection/leaf_types.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"

namespace tavrik::test {
namespace {

using namespace Introspection;

Ref<TypeInfo> type_of(const char* code) { return GetInfoFromTypeCode(String(std::string_view(code))); }

class TypeCodes : public testing::Test {
    Balance balance_;
};

TEST_F(TypeCodes, Name_types_of_every_kind) {
    struct {
        const char* code;
        const char* name;
        const char* full_name;
        const char* kinds;  // Primitive, Value type, poiNter, Enum, Array, Class, by letter
        ClassRecord* record;
    } const cases[] = {
        {"b", "Boolean", "Boolean", "PV", PrimitiveTypeInfo::__Lookup()},
        {"u8", "UInt64", "UInt64", "PV", PrimitiveTypeInfo::__Lookup()},
        {"p", "Ptr", "Ptr", "VN", PointerTypeInfo::__Lookup()},
        {"?<WString>", "WString", "WString", "VN", PointerTypeInfo::__Lookup()},
        {"s", "String", "String", "", StringInfo::__Lookup()},
        {"v", "Variant", "Variant", "", VariantInfo::__Lookup()},
        {"o<Object>", "Object", "Object", "", ClassInfo::__Lookup()},
        {"o<Nowhere>", "Object", "Object", "", ClassInfo::__Lookup()},
        {"o<Dictionary>", "Dictionary", "Dictionary", "C", ClassInfo::__Lookup()},
        {"i4<farm.Size>", "Size", "farm.Size", "VE", EnumInfo::__Lookup()},
        {"u1<Side>", "Side", "Side", "VE", EnumInfo::__Lookup()},
        {"t<a.b.Point>", "Point", "a.b.Point", "V", StructureInfo::__Lookup()},
        {"A1s", "String()", "String()", "A", ArrayInfo::__Lookup()},
        {"A2i4", "Int32(,)", "Int32(,)", "A", ArrayInfo::__Lookup()},
        {"A1t<a.b.Point>", "Point()", "a.b.Point()", "A", ArrayInfo::__Lookup()},
        {"As", "String()", "String()", "A", ArrayInfo::__Lookup()},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.code);
        const Ref<TypeInfo> type = type_of(expected.code);
        ASSERT_TRUE(type);
        EXPECT_EQ(type->record, expected.record);
        EXPECT_EQ(type->Name().view(), expected.name);
        EXPECT_EQ(type->FullName().view(), expected.full_name);
        std::string kinds;
        if (type->IsPrimitive()) kinds += 'P';
        if (type->IsValueType()) kinds += 'V';
        if (type->IsPointer()) kinds += 'N';
        if (type->IsEnum()) kinds += 'E';
        if (type->IsArray()) kinds += 'A';
        if (type->IsClass()) kinds += 'C';
        EXPECT_EQ(kinds, expected.kinds);
        EXPECT_EQ(type->HasElementType(), type->IsArray());
        if (!type->IsClass()) {
            EXPECT_EQ(type->GetProperties()->upper_bound(), -1);
            EXPECT_FALSE(type->BaseType() || type->IsSubclassOf(type) || type->IsSubclassOf(nullptr));
        }
        if (!type->IsArray()) {
            EXPECT_EQ(class_raised_by([&] { type->GetArrayRank(); }), "RuntimeException");
            EXPECT_EQ(class_raised_by([&] { type->GetElementType(); }), "RuntimeException");
        }
        EXPECT_EQ(type_of(expected.code), type) << "the second time it is the same object";
    }
    EXPECT_EQ(MakeIntrinsicTypeCodeMap()->Count(), 23);
}

TEST_F(TypeCodes, Without_a_meaning_give_nil) {
    for (const char* code : {"", "q", "x<Thing>", "?<Thing>", "b1"}) EXPECT_FALSE(type_of(code)) << code;
}

TEST_F(TypeCodes, A_name_that_has_been_met_decides_whatever_the_letter) {
    const Ref<TypeInfo> enumeration = type_of("i4<farm.Size>");
    for (const char* code : {"u2<farm.Size>", "t<farm.Size>", "o<farm.Size>", "x<farm.Size>"}) {
        EXPECT_EQ(type_of(code), enumeration) << code;
    }
    EXPECT_TRUE(is_a<EnumInfo>(GetFQNTypeInfoMap()->Value(StringToVariant("farm.Size"_s))));
}

TEST_F(TypeCodes, An_array_type_has_rank_and_element_and_is_found_by_its_name) {
    const Ref<TypeInfo> cube = type_of("A3A1i4");
    EXPECT_EQ(cube->GetArrayRank(), 3);
    EXPECT_EQ(cube->GetElementType(), type_of("A1i4"));
    EXPECT_EQ(cube->FullName(), "Int32()(,,)");

    const Ref<TypeInfo> element = type_of("f8");
    const Ref<TypeInfo> first = ArrayInfo::Lookup(0, element);
    EXPECT_EQ(ArrayInfo::Lookup(1, element), first) << "ranks with one suffix share the type";
    EXPECT_EQ(ArrayInfo::Lookup(-3, element), first);
    EXPECT_EQ(first->GetArrayRank(), 0);
}

TEST_F(TypeCodes, An_array_of_nothing_raises_with_a_map_and_without) {
    EXPECT_EQ(class_raised_by([] { type_of("A1q"); }), "NilObjectException");
    EXPECT_FALSE(ArrayInfo::mArrayMap) << "what failed isn't entered";
    type_of("A1i4");
    EXPECT_EQ(class_raised_by([] { type_of("A1"); }), "NilObjectException");
    EXPECT_EQ(ArrayInfo::mArrayMap->Count(), 1);
}

TEST_F(TypeCodes, The_end_of_the_program_leaves_no_type_and_the_next_question_starts_anew) {
    RuntimeExit();
    const std::int64_t before = RuntimeLiveObjects();
    // Two descriptions of one class: its name leads to the younger alone.
    ClassInfo::Lookup("Introspection.ClassInfo"_s);
    make<ClassInfo>()->Constructor(ClassInfo::__Lookup());
    type_of("A1o<MenuItem>");
    EXPECT_GT(RuntimeLiveObjects(), before);
    RuntimeExit();
    EXPECT_EQ(RuntimeLiveObjects(), before);
    EXPECT_EQ(type_of("A1o<MenuItem>")->Name(), "MenuItem()");
}

}  // namespace
}  // namespace tavrik::test
