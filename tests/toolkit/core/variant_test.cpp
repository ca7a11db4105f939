#include "toolkit/core/variant.h"

#include "data/variants.h"
#include "runtime/signature.h"
#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "toolkit/core/platform_types.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

struct Target {
    std::string_view code;
    std::string_view name;
    void (*unbox)(Object*);
};
constexpr Target kTargets[] = {{"i4", "Int32", [](Object* v) { VariantToInt32(v); }},
                               {"u4", "UInt32", [](Object* v) { VariantToUInt32(v); }},
                               {"i8", "Int64", [](Object* v) { VariantToInt64(v); }},
                               {"u8", "UInt64", [](Object* v) { VariantToUInt64(v); }},
                               {"b", "Boolean", [](Object* v) { VariantToBoolean(v); }},
                               {"f4", "Single", [](Object* v) { VariantToSingle(v); }},
                               {"f8", "Double", [](Object* v) { VariantToDouble(v); }},
                               {"c", "Color", [](Object* v) { VariantToColor(v); }},
                               {"s", "String", [](Object* v) { VariantToString(v); }},
                               {"e", "Currency", [](Object* v) { VariantToCurrency(v); }},
                               {"p", "Ptr", [](Object* v) { VariantToPtr(v); }}};

constexpr std::string_view kNumber = "i4 u4 i8 u8 b f4 f8 c s # e p";
constexpr std::string_view kPlatformText = "# i4 i8 p s u4 u8 b c e f8 f4";

struct ValueClassRow {
    std::string name;
    std::string slots;  // # is the hash
    Ref<Variant> value;
};
std::vector<ValueClassRow> value_classes() {
    return {
        {"Boolean", "i4 u4 i8 u8 b f4 f8 c s #", BooleanToVariant(true)},
        {"Color", "i4 u4 i8 u8 b f4 f8 c s #", ColorToVariant({1})},
        {"Currency", "i4 u4 i8 u8 b f4 f8 s e #", CurrencyToVariant({1})},
        {"Double", "i4 u4 i8 u8 b f4 f8 c s # e", DoubleToVariant(1)},
        {"Single", "i4 u4 i8 u8 b f4 f8 c s # e", SingleToVariant(1)},
        {"Int32", std::string(kNumber), Int32ToVariant(1)},
        {"UInt32", std::string(kNumber), UInt32ToVariant(1)},
        {"Int64", std::string(kNumber), Int64ToVariant(1)},
        {"UInt64", std::string(kNumber), UInt64ToVariant(1)},
        {"String", std::string(kNumber) + " ?<CString> ?<WString> ?<PString> ?<CFStringRef>", StringToVariant(nullptr)},
        {"CString", std::string(kPlatformText) + " ?<CString>", CStringToVariant({""})},
        {"PString", std::string(kPlatformText) + " ?<PString>", PStringToVariant({nullptr})},
        {"WString", std::string(kPlatformText) + " ?<WString>", WStringToVariant({nullptr})},
        {"CFStringRef", std::string(kPlatformText) + " ?<CFStringRef>", CFStringRefToVariant({nullptr})},
        {"Ptr", "i4 i8 s u4 u8 # p", PtrToVariant(nullptr)},
        {"OSType", "# i4 i8 s u4 u8 ?<OSType>", OSTypeToVariant({1})},
        {"WindowPtr", "# s ?<WindowPtr>", WindowPtrToVariant({nullptr})},
        {"Structure", "s #", StructureToVariant(nullptr, nullptr)}};
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

TEST(ValueClasses, Have_their_operations_in_the_order_of_their_slots) {
    for (const auto& [name, slots, value] : value_classes()) {
        const ClassRecord& record = *value.object()->record;
        EXPECT_EQ(view(record.name).substr(8), name);
        std::int32_t slot = 0;
        for (const std::string& code : words(slots)) {
            const MethodRecord& method = record.methods[slot];
            EXPECT_EQ(view(method.name), code == "#" ? "Operator_Hash" : "Operator_Convert") << name;
            EXPECT_EQ(split_signature(view(method.signature)).value().result, code == "#" ? "i4" : code) << name;
            EXPECT_EQ(method.function, record.vtable[slot]) << name;
            EXPECT_EQ(method.flags, kPublic) << name;
            ++slot;
        }
        EXPECT_EQ(record.vtable_size, slot) << name;
        const bool owns = name == "String" || name == "Structure";
        ASSERT_EQ(record.method_count, slot + (owns ? 2 : 0)) << name;
        if (!owns) continue;
        const MethodRecord* const end = record.methods + slot;
        EXPECT_EQ(view(end[0].name), "Destructor");
        EXPECT_EQ(end[0].function, reinterpret_cast<Function>(record.destructor));
        EXPECT_EQ(view(end[1].name), "__exit");
        EXPECT_EQ(end[1].function, reinterpret_cast<Function>(record.exit));
        EXPECT_EQ(end[0].flags + end[1].flags, 0);
    }
}

TEST(Conversions, That_a_class_has_not_raise_with_both_kinds) {
    const Balance balance;
    for (const auto& [name, slots, value] : value_classes()) {
        for (const Target& target : kTargets) {
            const bool has = std::ranges::count(words(slots), target.code) == 1;
            const Ref<Object> raised = raised_by([&, &object = value] { target.unbox(object.object()); });
            EXPECT_EQ(class_of(raised), has ? "nothing" : "TypeMismatchException") << name << " to " << target.name;
            EXPECT_EQ(message_of(raised), has ? "" : name + " can't be converted to " + std::string(target.name));
        }
    }
    const Ref<Probe> probe = make_probe(1);
    const Ref<Object> raised = raised_by([&] { VariantToInt32(probe.get()); });
    EXPECT_EQ(message_of(raised), "Probe can't be converted to Int32");
}

TEST(Conversions, Of_nil_give_zero_and_those_of_a_class_raise) {
    EXPECT_EQ(VariantToInt64(nullptr), 0);
    EXPECT_FALSE(VariantToBoolean(nullptr));
    EXPECT_EQ(VariantToString(nullptr), "");
    EXPECT_EQ(VariantToPtr(nullptr), nullptr);
    EXPECT_EQ(VariantToColor(nullptr), Color{0});
    EXPECT_EQ(class_raised_by([] { Int32ObjectToString(nullptr); }), "NilObjectException");
    EXPECT_EQ(class_raised_by([] { StringObjectHash(nullptr); }), "NilObjectException");
}

template <class Class, class To>
To converted(const Ref<Variant>& value) {
    return static_cast<Class*>(value.object())->template Operator_Convert<To>();
}

TEST(Conversions, That_share_a_function_keep_its_bits) {
    EXPECT_EQ((converted<_VariantBoolean, std::uint32_t>(BooleanToVariant(true))), 1U);
    EXPECT_EQ((converted<_VariantBoolean, std::uint64_t>(BooleanToVariant(true))), 1U);
    EXPECT_EQ((converted<_VariantColor, std::uint32_t>(ColorToVariant({0xFF000001}))), 0xFF000001U);
    EXPECT_EQ((converted<_VariantColor, std::uint64_t>(ColorToVariant({0xFF000001}))), 0xFF000001U);
    EXPECT_EQ((converted<_VariantInt32, std::uint32_t>(Int32ToVariant(-1))), UINT32_MAX);
    EXPECT_EQ((converted<_VariantUInt32, std::int32_t>(UInt32ToVariant(UINT32_MAX))), -1);
}

constexpr std::string_view kText = "k\xC3\xA4se\xF0\x9F\x98\x80";

TEST(OwnForms, That_are_plain_lie_in_their_object) {
    const Balance balance;
    std::string c_text(kText);
    std::string p_text = c_text;
    p_text.insert(p_text.begin(), static_cast<char>(kText.size()));
    const Ref<Variant> string = StringToVariant(String(kText));
    const Ref<Variant> c_string = CStringToVariant({c_text.c_str()});
    const Ref<Variant> p_string = PStringToVariant({reinterpret_cast<const unsigned char*>(p_text.data())});
    c_text.assign(c_text.size(), '?');
    p_text.assign(p_text.size(), '?');
    EXPECT_EQ(StringObjectToCString(string.object()).bytes, kText);
    EXPECT_EQ(CStringObjectToCString(c_string.object()).bytes, kText);
    EXPECT_EQ(core::view(StringObjectToPString(string.object())), kText);
    EXPECT_EQ(core::view(PStringObjectToPString(p_string.object())), kText);
}

TEST(OwnForms, That_are_counted_outlive_their_object) {
    const WString units = RuntimeNewWString(kText);
    for (const WString own : {StringObjectToWString(StringToVariant(String(kText)).object()),
                              WStringObjectToWString(WStringToVariant(units).object())}) {
        EXPECT_EQ(core::view(own), u"k\u00E4se\U0001F600");
        EXPECT_EQ(own.record->text[own.record->length], u'\0');
        EXPECT_EQ(own.record->count, own.record == units.record ? 2 : 1);
        SwapWStringLocks(own, own);
        UnlockWString(own);
    }
    EXPECT_EQ(units.record->count, 1);
    UnlockWString(units);

    const CFStringRef counted = RuntimeNewCFString(kText);
    for (const CFStringRef own : {StringObjectToCFStringRef(StringToVariant(String(kText)).object()),
                                  CFStringRefObjectToCFStringRef(CFStringRefToVariant(counted).object())}) {
        EXPECT_EQ(view(core::string_of(own)), kText);
        EXPECT_EQ(core::string_of(own)->count, own.record == counted.record ? 2 : 1);
        SwapCFStringLocks(own, own);
        UnlockCFString(own);
    }
    EXPECT_EQ(core::string_of(counted)->count, 1);
    UnlockCFString(counted);
}

TEST(OwnForms, Of_nothing_are_empty) {
    const Ref<Variant> empty = StringToVariant(nullptr);
    EXPECT_STREQ(StringObjectToCString(empty.object()).bytes, "");
    EXPECT_EQ(StringObjectToPString(empty.object()).bytes[0], 0);
    EXPECT_EQ(VariantToString(CStringToVariant({nullptr}).object()), "");
    EXPECT_EQ(VariantToInt32(PStringToVariant({nullptr}).object()), 0);
    EXPECT_EQ(VariantToString(WStringToVariant({nullptr}).object()), "");
    EXPECT_EQ(WStringObjectToWString(WStringToVariant({nullptr}).object()).record, nullptr);
}

TEST(Structures, Keep_their_bytes_and_their_name) {
    const Balance balance;
    const String bytes(std::string_view("\0\1\xFF", 3));
    {
        const Ref<Variant> structure = StructureToVariant("Point"_s, bytes);
        EXPECT_EQ(VariantToString(structure.object()), bytes);
        EXPECT_EQ(core::structure_name(structure.object()), "Point");
        EXPECT_EQ(bytes.record()->count, 2);
    }
    EXPECT_EQ(bytes.record()->count, 1);
}

TEST(ValueObjects, Of_other_records_of_the_same_name_are_values_too) {
    Int32ToVariant(1);
    const Ref<Object> other = RuntimeNewObject(new_class("_VariantInt32", nullptr, sizeof(ValueObject)));
    static_cast<ValueObject*>(other.object())->int32 = 12;
    EXPECT_FALSE(boxes(other.object(), ValueKind::kInt32));
    EXPECT_EQ(VariantToInt32(other.object()), 12);
    const Ref<Object> child = RuntimeNewObject(new_class("_VariantInt64", other.object()->record, sizeof(ValueObject)));
    EXPECT_EQ(core::kind_of(child.object()), ValueKind::kNone);
}

}  // namespace
}  // namespace tavrik::test
