#include "runtime/invoke.h"

#include "runtime/class.h"
#include "tests/support/balance.h"
#include "tests/support/raised.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

// A class with a method for each form of a signature.
namespace tavrik::calls {

enum class Pitch : std::int32_t { kLow, kHigh };

struct Chord : Structure {
    unsigned char bytes[5];

    static void set_StringValue(Chord& chord, bool little_endian, const String& bytes) {
        EXPECT_TRUE(little_endian);
        RuntimeSetStructureString(&chord, 0, sizeof chord, bytes);
    }
};

struct Singer : Class<Singer> {
    static const ClassDefinition& definition();

    template <class T>
    T Echo(detail::ArgumentOf<T> value) {
        return dispatch<&Singer::Echo<T>>(this, value);
    }
    template <class T>
    T Give() {
        return dispatch<&Singer::Give<T>>(this);
    }
    void Rest() { dispatch<&Singer::Rest>(this); }
    void Double(double& first, double& second) { dispatch<&Singer::Double>(this, first, second); }
    bool Replace(Ref<Singer>& singer) { return dispatch<&Singer::Replace>(this, singer); }
    std::int32_t Play(Chord& chord, Pitch pitch) { return dispatch<&Singer::Play>(this, chord, pitch); }
    std::int32_t Count(Arg<ArrayOf<Singer>> singers, Arg<ArrayOf<std::int32_t>> numbers,
                       Arg<ArrayOf<Variant>> variants) {
        return dispatch<&Singer::Count>(this, singers, numbers, variants);
    }
    void Fail(const String& message) { dispatch<&Singer::Fail>(this, message); }
    static std::int32_t Sum(std::int32_t a, std::int32_t b) { return a + b; }
    std::int32_t Volume() { return mVolume; }
    void set_Volume(std::int32_t volume) { mVolume = volume; }

    std::int32_t mVolume;
    StringField mName;
    Field<Singer> mPartner;
};

struct Baritone : Class<Baritone, Singer> {
    static const ClassDefinition& definition();
};

namespace {

template <class T>
T echo(Singer*, detail::ArgumentOf<T> value) {
    return value;
}
Ref<ArrayOf<Singer>> quartet(Singer* self) {
    auto singers = ArrayOf<Singer>::make();
    singers->append(self);
    return singers;
}
Ref<ArrayOf<String>> words(Singer*) {
    auto texts = ArrayOf<String>::make();
    texts->append("la"_s);
    return texts;
}
CString c_string(Singer*) { return {"c"}; }
PString p_string(Singer*) { return {reinterpret_cast<const unsigned char*>("\1p")}; }
WString w_string(Singer*) { return RuntimeNewWString("w"); }
CFStringRef cf_string(Singer*) { return RuntimeNewCFString("cf"); }
WindowPtr window(Singer*) { return {}; }
OSType os_type(Singer*) { return {0x54455854}; }

void double_both(Singer*, double& first, double& second) {
    first *= 2;
    second *= 2;
    if (second == 6) throw std::logic_error("not by reference");
}
bool replace(Singer* self, Ref<Singer>& singer) {
    const bool was_other = singer.object() != self;
    singer = Ref<Singer>(self);
    return was_other;
}
std::int32_t play(Singer*, Chord& chord, Pitch pitch) {
    return chord.bytes[0] + 100 * chord.bytes[4] + 1000 * static_cast<std::int32_t>(pitch);
}
std::int32_t count(Singer*, Arg<ArrayOf<Singer>> singers, Arg<ArrayOf<std::int32_t>> numbers,
                   Arg<ArrayOf<Variant>> variants) {
    return singers->upper_bound() + 1 + 10 * numbers->at(0) + 100 * (variants->upper_bound() + 1);
}
void fail(Singer*, const String& message) { test::raise<RuntimeException>(message.view()); }

template <class T>
constexpr OperationRow echoes() {
    return operation<&Singer::Echo<T>, echo<T>>("Echo");
}

constexpr OperationRow kOperations[] = {
    echoes<bool>(),
    echoes<std::int8_t>(),
    echoes<std::int16_t>(),
    echoes<std::int32_t>(),
    echoes<std::int64_t>(),
    echoes<std::uint8_t>(),
    echoes<std::uint16_t>(),
    echoes<std::uint32_t>(),
    echoes<std::uint64_t>(),
    echoes<float>(),
    echoes<double>(),
    echoes<Currency>(),
    echoes<Color>(),
    echoes<String>(),
    echoes<void*>(),
    echoes<Ref<Variant>>(),
    echoes<Ref<Object>>(),
    echoes<Ref<Singer>>(),
    operation<&Singer::Give<Ref<ArrayOf<Singer>>>, quartet>("Give"),
    operation<&Singer::Give<Ref<ArrayOf<String>>>, words>("Give"),
    operation<&Singer::Give<CString>, c_string>("Give"),
    operation<&Singer::Give<PString>, p_string>("Give"),
    operation<&Singer::Give<WString>, w_string>("Give"),
    operation<&Singer::Give<CFStringRef>, cf_string>("Give"),
    operation<&Singer::Give<WindowPtr>, window>("Give"),
    operation<&Singer::Give<OSType>, os_type>("Give"),
    operation<&Singer::Rest, no_effect>("Rest"),
    operation<&Singer::Double, double_both>("Double"),
    operation<&Singer::Replace, replace>("Replace"),
    operation<&Singer::Play, play>("Play"),
    operation<&Singer::Count, count>("Count"),
    operation<&Singer::Fail, fail>("Fail"),
    shared<&Singer::Sum>("Sum"),
};

constexpr FieldRow kFields[] = {
    field<&Singer::mVolume>("mVolume"),
    field<&Singer::mName>("mName"),
    field<&Singer::mPartner>("mPartner"),
};
constexpr PropertyRow kProperties[] = {property<&Singer::Volume, &Singer::set_Volume>("Volume")};

}  // namespace

const ClassDefinition& Singer::definition() {
    static constexpr ClassDefinition kDefinition =
        define<Singer>({.operations = kOperations, .fields = kFields, .properties = kProperties});
    return kDefinition;
}
const ClassDefinition& Baritone::definition() {
    static constexpr ClassDefinition kDefinition = define<Baritone>({});
    return kDefinition;
}

namespace {

using test::class_of;
using test::class_raised_by;
using test::message_of;
using test::raised_by;

const MethodRecord& method(std::string_view name, std::string_view signature = {}) {
    const ClassRecord& record = *Singer::__Lookup();
    const std::span methods(record.methods, static_cast<std::size_t>(record.method_count));
    return *std::ranges::find_if(methods, [&](const MethodRecord& candidate) {
        return view(candidate.name) == name && (signature.empty() || view(candidate.signature) == signature);
    });
}

using Values = std::vector<Ref<Object>>;

Ref<Array> array_of(const Values& values) {
    auto array = ArrayOf<Variant>::make();
    for (const Ref<Object>& value : values) array->append(value.object());
    return array;
}

Ref<Object> invoke(const MethodRecord& called, const Ref<Object>& target, const Values& arguments) {
    return RuntimeGenericInvoker(called.invoker, called.function, target.object(), array_of(arguments).get());
}

class DynamicCalls : public testing::Test {
protected:
    Ref<Object> invoke(const MethodRecord& called, const Values& arguments) {
        return calls::invoke(called, singer_, arguments);
    }

    test::Balance balance_;
    Ref<Singer> singer_ = make<Singer>();
};

Ref<Variant> text(std::string_view bytes) { return StringToVariant(String(bytes)); }

TEST_F(DynamicCalls, Convert_each_type_on_the_way_in_and_out) {
    const struct {
        std::string_view signature;
        Ref<Variant> argument;
        std::string_view result_class;
        std::string_view result;
    } cases[] = {
        {"%b%b", text("true"), "_VariantBoolean", "true"},
        {"%i1%i1", Int32ToVariant(200), "_VariantInt32", "-56"},
        {"%i2%i2", Int32ToVariant(0x18000), "_VariantInt32", "-32768"},
        {"%i4%i4", text("-7 men"), "_VariantInt32", "-7"},
        {"%i8%i8", Int64ToVariant(-5'000'000'000), "_VariantInt64", "-5000000000"},
        {"%u1%u1", Int32ToVariant(300), "_VariantUInt32", "44"},
        {"%u2%u2", Int32ToVariant(-1), "_VariantUInt32", "65535"},
        {"%u4%u4", Int32ToVariant(-1), "_VariantUInt32", "4294967295"},
        {"%u8%u8", UInt64ToVariant(~0ULL), "_VariantUInt64", "18446744073709551615"},
        {"%f4%f4", DoubleToVariant(0.1), "_VariantSingle", "0.1"},
        {"%f8%f8", text("2.5"), "_VariantDouble", "2.5"},
        {"%e%e", CurrencyToVariant({12345}), "_VariantCurrency", "1.2345"},
        {"%c%c", ColorToVariant(rgb(1, 2, 3)), "_VariantColor", "#010203"},
        {"%s%s", Int32ToVariant(12), "_VariantString", "12"},
        {"%p%p", PtrToVariant(nullptr), "_VariantPtr", "0x0"},
    };
    for (const auto& [signature, argument, result_class, result] : cases) {
        const Ref<Object> given = invoke(method("Echo", signature), {argument});
        EXPECT_EQ(class_of(given), result_class) << signature;
        EXPECT_EQ(VariantToString(given.object()).view(), result) << signature;
    }
    EXPECT_FALSE(invoke(method("Rest"), {}));
}

TEST_F(DynamicCalls, Hand_objects_and_variants_on_as_they_are) {
    const Ref<Variant> number = Int32ToVariant(1);
    const Ref<Object> baritone = make<Baritone>();
    EXPECT_EQ(invoke(method("Echo", "%v%v"), {number}), number);
    EXPECT_EQ(invoke(method("Echo", "%o<Object>%o<Object>"), {number}), number);
    const MethodRecord& typed = method("Echo", "%o<calls.Singer>%o<calls.Singer>");
    EXPECT_EQ(invoke(typed, {baritone}), baritone);
    EXPECT_EQ(invoke(typed, {nullptr}), nullptr);
    EXPECT_EQ(class_raised_by([&] { invoke(typed, {number}); }), "IllegalCastException");
    EXPECT_EQ(number->count, 1);
    EXPECT_EQ(baritone.object()->count, 1);
}

TEST_F(DynamicCalls, Box_what_only_comes_out) {
    const struct {
        std::string_view signature;
        std::string_view result_class;
        std::string_view result;
    } cases[] = {
        {"%?<CString>%", "_VariantCString", "c"},       {"%?<PString>%", "_VariantPString", "p"},
        {"%?<WString>%", "_VariantWString", "w"},       {"%?<CFStringRef>%", "_VariantCFStringRef", "cf"},
        {"%?<WindowPtr>%", "_VariantWindowPtr", "0x0"}, {"%?<OSType>%", "_VariantOSType", "TEXT"},
    };
    for (const auto& [signature, result_class, result] : cases) {
        const Ref<Object> given = invoke(method("Give", signature), {});
        EXPECT_EQ(class_of(given), result_class);
        EXPECT_EQ(VariantToString(given.object()).view(), result);
    }
    const auto words = static_ref<ArrayOf<String>>(invoke(method("Give", "%A1s%"), {}));
    EXPECT_EQ(words->at(0), "la");
}

TEST_F(DynamicCalls, Show_an_array_of_a_class_through_a_view_that_checks) {
    const auto singers = static_ref<ArrayOf<Variant>>(invoke(method("Give", "%A1o<calls.Singer>%"), {}));
    EXPECT_EQ(singers->at(0), singer_);
    singers->append(make<Baritone>());
    singers->set(0, nullptr);
    EXPECT_EQ(singers->upper_bound(), 1);
    EXPECT_EQ(class_raised_by([&] { singers->append(Int32ToVariant(1)); }), "IllegalCastException");
    EXPECT_EQ(class_raised_by([&] { singers->set(0, Int32ToVariant(1)); }), "IllegalCastException");
    singers->remove(0);
    EXPECT_EQ(singers->index_of(singer_), -1);
    EXPECT_EQ(class_raised_by([&] { singers->at(7); }), "OutOfBoundsException");
}

TEST_F(DynamicCalls, Take_arrays_of_the_right_elements_only) {
    const auto numbers = ArrayOf<std::int32_t>::make(0);
    numbers->set(0, 3);
    const auto fitting = array_of({singer_, nullptr, make<Baritone>()});
    const Ref<Array> viewed = RuntimeCreateArrayCastWrapper(fitting.get(), Baritone::__Lookup());
    const Ref<Array> mixed = array_of({singer_, Int32ToVariant(1)});
    const MethodRecord& called = method("Count");
    EXPECT_EQ(VariantToInt32(invoke(called, {fitting, numbers, mixed}).object()), 233);
    EXPECT_EQ(VariantToInt32(invoke(called, {viewed, numbers, mixed}).object()), 233);
    EXPECT_EQ(class_raised_by([&] { invoke(called, {mixed, numbers, mixed}); }), "IllegalCastException");
    EXPECT_EQ(class_raised_by([&] { invoke(called, {numbers, numbers, mixed}); }), "TypeMismatchException");
    EXPECT_EQ(class_raised_by([&] { invoke(called, {fitting, mixed, mixed}); }), "TypeMismatchException");
    EXPECT_EQ(class_raised_by([&] { invoke(called, {fitting, numbers, Int32ToVariant(1)}); }), "TypeMismatchException");
}

TEST_F(DynamicCalls, Drop_what_the_function_leaves_in_an_argument_by_reference) {
    const Ref<Variant> number = DoubleToVariant(1.5);
    const Ref<Singer> other = make<Singer>();
    invoke(method("Double"), {number, number});
    EXPECT_EQ(VariantToDouble(number.object()), 1.5);
    EXPECT_TRUE(VariantToBoolean(invoke(method("Replace"), {other}).object()));
    EXPECT_EQ(other->count, 1);
    EXPECT_EQ(singer_->count, 1);
}

TEST_F(DynamicCalls, Fill_structures_from_their_bytes) {
    const MethodRecord& called = method("Play", "%i4%&t<calls.Chord>i4<calls.Pitch>");
    const Ref<Variant> chord = StructureToVariant("calls.Chord"_s, "\1\2\3\4\5\6"_s);
    EXPECT_EQ(VariantToInt32(invoke(called, {chord, Int32ToVariant(1)}).object()), 1501);
    const Ref<Variant> other = StructureToVariant("calls.Tone"_s, "\1"_s);
    for (const Ref<Variant>& wrong : {other, text("calls.Chord"), Ref<Variant>()}) {
        EXPECT_EQ(class_raised_by([&] { invoke(called, {wrong, nullptr}); }), "TypeMismatchException");
    }
}

TEST_F(DynamicCalls, Need_a_target_and_arguments_just_where_they_are_used) {
    const MethodRecord& rest = method("Rest");
    const MethodRecord& sum = method("Sum");
    const auto call = [](const MethodRecord& called, Object* target, Array* arguments) {
        return RuntimeGenericInvoker(called.invoker, called.function, target, arguments);
    };
    EXPECT_FALSE(call(rest, singer_.get(), nullptr));
    EXPECT_EQ(class_raised_by([&] { call(rest, nullptr, nullptr); }), "NilObjectException");
    EXPECT_EQ(class_raised_by([&] { call(sum, nullptr, nullptr); }), "NilObjectException");
    EXPECT_EQ(class_raised_by([&] { call({}, singer_.get(), nullptr); }), "FunctionNotFoundException");
    const Values three = {Int32ToVariant(1), Int32ToVariant(2), Int32ToVariant(4)};
    EXPECT_EQ(VariantToInt32(calls::invoke(sum, nullptr, three).object()), 3);
    EXPECT_EQ(class_raised_by([&] { invoke(sum, {three[0]}); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([&] { invoke(sum, {singer_, nullptr}); }), "TypeMismatchException");
    EXPECT_EQ(message_of(raised_by([&] { invoke(method("Fail"), {text("out of tune")}); })), "out of tune");
    EXPECT_EQ(singer_->count, 1);
}

TEST_F(DynamicCalls, Read_and_write_properties) {
    const ClassRecord& record = *Singer::__Lookup();
    const auto property = [&](std::string_view name) -> const PropertyRecord& {
        const std::span properties(record.properties, static_cast<std::size_t>(record.property_count));
        return *std::ranges::find_if(properties, [&](const auto& p) { return view(p.name) == name; });
    };
    const auto pass = [&](std::string_view name, const Ref<Object>& value) {
        const PropertyRecord& p = property(name);
        RuntimeGenericSetter(p.write_invoker, p.setter, singer_.get(), p.parameter, value.object());
        return RuntimeGenericGetter(p.read_invoker, p.getter, singer_.get(), p.parameter);
    };
    EXPECT_EQ(VariantToInt32(pass("Volume", text("11")).object()), 11);
    EXPECT_EQ(VariantToInt32(pass("mVolume", DoubleToVariant(3.9)).object()), 3);
    EXPECT_EQ(VariantToString(pass("mName", Int32ToVariant(5)).object()), "5");
    // The class of a reference isn't looked at.
    const Ref<Variant> number = Int32ToVariant(1);
    EXPECT_EQ(pass("mPartner", number), number);
    EXPECT_EQ(number->count, 2);
    EXPECT_EQ(pass("mPartner", number), number);
    EXPECT_EQ(number->count, 2);
    EXPECT_EQ(class_raised_by(
                  [&] { RuntimeGenericGetter(property("mName").read_invoker, property("mName").getter, nullptr, 0); }),
              "NilObjectException");
}

TEST_F(DynamicCalls, Share_one_invoker_for_one_signature) {
    EXPECT_EQ(method("Rest").invoker, invoker_of<void>());
    EXPECT_EQ(method("Volume.Get").invoker, (invoker_of<std::int32_t, std::int32_t>()));
    EXPECT_EQ((invoker_of<Function, ClassRecord*>()), (invoker_of<void*, void*>()));
    EXPECT_NE((invoker_of<void, Arg<Singer>>()), (invoker_of<void, Arg<Baritone>>()));
    EXPECT_NE((shared_invoker_of<void>()), (invoker_of<void>()));
    EXPECT_EQ((read_invoker_of<Ref<Singer>>()), (read_invoker_of<Ref<ArrayOf<Singer>>>()));
}

}  // namespace
}  // namespace tavrik::calls
