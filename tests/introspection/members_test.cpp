#include "introspection/attribute_info.h"
#include "introspection/class_info.h"
#include "introspection/constructor_info.h"
#include "introspection/method_info.h"
#include "introspection/parameter_info.h"
#include "introspection/property_info.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "tests/support/sketch.h"

#include <tavrik/variant.h>

namespace tavrik::test {
namespace {

using namespace Introspection;

struct Lamp : Object {
    std::int32_t level;
};

template <class F>
Function erased(F* function) {
    return reinterpret_cast<Function>(function);
}

// What a lamp's methods do, and how they are called with variants.
void set_level(Object* lamp, std::int32_t level) { static_cast<Lamp*>(lamp)->level = level; }
std::int32_t twice(std::int32_t number) { return 2 * number; }

std::int32_t first_of(Array* arguments) {
    return VariantToInt32(static_cast<ArrayOf<Variant>*>(arguments)->at(0).object());
}
Ref<Object> call_instance(Function function, Object* target, Array* arguments) {
    if (target == nullptr) RaiseNilObjectException();
    reinterpret_cast<void (*)(Object*, std::int32_t)>(function)(target, first_of(arguments));
    return nullptr;
}
Ref<Object> call_shared(Function function, Object*, Array* arguments) {
    return Int32ToVariant(reinterpret_cast<std::int32_t (*)(std::int32_t)>(function)(first_of(arguments)));
}

// The accessors make use of the number that stands in the record.
std::int32_t get_level(Object* lamp, std::int32_t number) { return static_cast<Lamp*>(lamp)->level + number; }
void put_level(Object* lamp, std::int32_t number, std::int32_t value) { set_level(lamp, value - number); }
Ref<Object> read_level(Function getter, Object* target, std::int32_t number) {
    return Int32ToVariant(reinterpret_cast<decltype(&get_level)>(getter)(target, number));
}
void write_level(Function setter, Object* target, std::int32_t number, Object* value) {
    reinterpret_cast<decltype(&put_level)>(setter)(target, number, VariantToInt32(value));
}

Ref<ArrayOf<Variant>> arguments(std::initializer_list<std::int32_t> numbers) {
    auto array = ArrayOf<Variant>::make();
    for (const std::int32_t number : numbers) array->append(Int32ToVariant(number));
    return array;
}

ClassRecord* lamp_class() {
    static ClassRecord* const made = make_class(
        "sketch.Lamp",
        {.methods = {{"SetLevel", "%%i4", {}, erased(set_level), erased(call_instance)},
                     {"Twice", "%i4%i4", {"__Shared"}, erased(twice), erased(call_shared)},
                     {"Constructor", "%%i4", {}, erased(set_level), erased(call_instance)}},
         .properties =
             {{"Level", "i4", {}, erased(get_level), erased(read_level), erased(put_level), erased(write_level), 100},
              {"Reading", "i4", {}, erased(get_level), erased(read_level)},
              {"sMap", "o<Dictionary>", {"__Shared"}}},
         .instance_size = sizeof(Lamp)});
    return made;
}

ClassRecord* torch_class() {
    static ClassRecord* const made =
        make_class("sketch.Torch", {.parent = lamp_class(), .instance_size = sizeof(Lamp)});
    return made;
}

Ref<Lamp> make_lamp(ClassRecord* record) { return static_ref<Lamp>(RuntimeNewObject(record)); }

Ref<MethodInfo> method_of(ClassRecord* record, std::int32_t index) {
    return ClassInfo::Lookup(record)->GetMethods()->at(index);
}
Ref<PropertyInfo> property_of(ClassRecord* record, std::int32_t index) {
    return ClassInfo::Lookup(record)->GetProperties()->at(index);
}

class Members : public testing::Test {
    Balance balance_;
};

TEST_F(Members, A_signature_is_taken_apart_into_result_and_parameters) {
    struct {
        const char* signature;
        const char* result;
        Names parameters;
    } const cases[] = {
        {"%%", "", {}},
        {"%o<a.B>%i4o<a.B>c", "o<a.B>", {"i4", "o<a.B>", "c"}},
        {"%%&f8&f8", "", {"&f8", "&f8"}},
        {"%%A1o<MenuItem>b", "", {"A1o<MenuItem>", "b"}},
        {"%b%&t<a.T>i4<a.E>", "b", {"&t<a.T>", "i4<a.E>"}},
        {"%%o<Pair<o<Key>s>>c", "", {"o<Pair<o<Key>s>>", "c"}},
        {"%%A1A1i4", "", {"A1A1", "i4"}},
        {"%%q12\xC3\xA4s", "", {"q12", "\xC3\xA4", "s"}},
        {"%%o<Half", "", {"o<Half"}},
        {"%%b&A", "", {"b", "&A"}},
        {"no signature", "", {}},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.signature);
        const auto method = method_of(make_class("sketch.Signed", {.methods = {{"Do", expected.signature}}}), 0);
        EXPECT_EQ(method->mReturnTypeCode.view(), expected.result);
        const auto code = [](const Ref<ParameterInfo>& parameter) {
            return RuntimeAddString(parameter->IsByRef() ? "&"_s : String(), parameter->mParamTypeCode);
        };
        EXPECT_EQ(told(method->GetParameters(), code), expected.parameters);
    }
}

TEST_F(Members, Types_of_results_and_parameters_are_looked_up_when_asked_for) {
    const Ref<MethodInfo> method =
        method_of(make_class("sketch.Lazy", {.methods = {{"Do", "%o<sketch.Later>%A1o<MenuItem>q"}}}), 0);
    ClassRecord* const later = make_class("sketch.Later");
    EXPECT_EQ(static_ref<ClassInfo>(method->ReturnType())->mClassRef, later);
    EXPECT_EQ(method->GetParameters()->at(0)->ParameterType()->Name(), "MenuItem()");
    EXPECT_FALSE(method->GetParameters()->at(1)->ParameterType());
    EXPECT_FALSE(method_of(lamp_class(), 0)->ReturnType());
}

TEST_F(Members, A_method_is_called_on_objects_of_its_owner) {
    const Ref<MethodInfo> set = method_of(lamp_class(), 0);
    const Ref<Lamp> lamp = make_lamp(lamp_class());
    const Ref<Lamp> torch = make_lamp(torch_class());
    EXPECT_FALSE(set->Invoke(lamp, arguments({7})));
    set->Invoke_(torch, arguments({8, 9}));
    EXPECT_EQ(lamp->level, 7);
    EXPECT_EQ(torch->level, 8);

    const Ref<MethodInfo> inherited = method_of(torch_class(), 0);
    const Ref<MethodInfo> shared = method_of(lamp_class(), 1);
    EXPECT_EQ(VariantToInt32(shared->Invoke(nullptr, arguments({21})).object()), 42);
    const auto raised = [&](const Ref<MethodInfo>& method, Ref<Object> target, Ref<ArrayOf<Variant>> given) {
        return class_raised_by([&] { method->Invoke_(target, given); });
    };
    EXPECT_EQ(raised(inherited, lamp, arguments({1})), "IllegalCastException") << "of the class that was asked";
    EXPECT_EQ(raised(set, set, arguments({1})), "IllegalCastException");
    EXPECT_EQ(raised(shared, set, arguments({1})), "IllegalCastException");
    EXPECT_EQ(raised(set, nullptr, arguments({1})), "NilObjectException");
    EXPECT_EQ(raised(set, lamp, arguments({})), "OutOfBoundsException");
    EXPECT_EQ(lamp->level, 7);
}

TEST_F(Members, A_constructor_makes_an_object_and_an_implicit_one_takes_no_arguments) {
    const auto constructors = ClassInfo::Lookup(torch_class())->GetConstructors();
    const auto torch = static_ref<Lamp>(constructors->at(0)->Invoke(arguments({5})));
    EXPECT_EQ(torch->record, torch_class()) << "an inherited constructor makes the class that was asked";
    EXPECT_EQ(torch->level, 5);
    EXPECT_EQ(torch->count, 1);

    ClassRecord* const bare = make_class("sketch.Bare");
    const auto implicit = ClassInfo::Lookup(bare)->GetConstructors();
    EXPECT_EQ(names_of(implicit), Names{""});
    EXPECT_EQ(implicit->at(0)->Invoke(nullptr)->record, bare);
}

TEST_F(Members, A_property_is_read_and_written_through_its_invokers) {
    const Ref<Lamp> lamp = make_lamp(torch_class());
    const Ref<PropertyInfo> level = property_of(lamp_class(), 0);
    level->set_Value(lamp, Int32ToVariant(103));
    EXPECT_EQ(lamp->level, 3);
    EXPECT_EQ(VariantToInt32(level->Value(lamp).object()), 103);
    EXPECT_EQ(level->PropertyType()->Name(), "Int32");

    const Ref<PropertyInfo> reading = property_of(lamp_class(), 1);
    const Ref<PropertyInfo> map = property_of(lamp_class(), 2);
    EXPECT_EQ(map->PropertyType()->Name(), "Dictionary");
    const auto raised = [](const Ref<PropertyInfo>& property, Ref<Object> target) {
        return Names{class_raised_by([&] { property->Value(target); }),
                     class_raised_by([&] { property->set_Value(target, nullptr); })};
    };
    EXPECT_EQ(raised(level, level), (Names{"IllegalCastException", "IllegalCastException"}));
    EXPECT_EQ(raised(level, nullptr), (Names{"NilObjectException", "NilObjectException"}));
    EXPECT_EQ(raised(reading, lamp), (Names{"nothing", "RuntimeException"}));
    EXPECT_EQ(raised(map, nullptr), (Names{"RuntimeException", "RuntimeException"}));
}

TEST_F(Members, An_attribute_has_a_value_where_the_record_has_one) {
    for (const auto& [text, flag] : {std::pair{"", 0}, {"", 1}, {"why", 0}, {"why", 1}}) {
        const String value{std::string_view(text)};
        AttributeEntry entry{"Noted"_s.record(), value.record(), static_cast<std::uint8_t>(flag)};
        const Ref<AttributeInfo> attribute = make<AttributeInfo>();
        attribute->Constructor(&entry);
        EXPECT_EQ(attribute->Name.view(), "Noted");
        EXPECT_EQ(static_cast<bool>(attribute->Value), flag == 1 || !value.empty());
        EXPECT_EQ(VariantToString(attribute->Value.object()), value);
    }
    EXPECT_EQ(method_of(lamp_class(), 1)->GetAttributes()->at(0)->Name.view(), "__Shared");
}

}  // namespace
}  // namespace tavrik::test
