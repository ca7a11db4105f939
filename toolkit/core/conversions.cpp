#include "toolkit/core/conversion_rules.h"
#include "toolkit/core/value_keys.h"
#include "toolkit/core/variant.h"

#include <tavrik/conversions.h>
#include <tavrik/exception.h>

#include <array>
#include <string>

namespace tavrik {
namespace {

const ValueObject& boxed(const Object* object) {
    if (object == nullptr) RaiseNilObjectException();
    return *static_cast<const ValueObject*>(object);
}

template <ValueKind Kind>
auto value_in(const ValueObject& object) {
    if constexpr (Kind == ValueKind::kStructure) {
        return String(object.string);
    } else if constexpr (core::is_text(Kind)) {
        return core::text_of(&object);
    } else {
        return object.*core::held<Kind>;
    }
}

template <ValueKind Kind, class To>
To convert(const Object* object) {
    return core::Conversion<To>::from(value_in<Kind>(boxed(object)));
}

template <ValueKind Kind>
auto own_form(const Object* object) {
    return boxed(object).*core::held<Kind>;
}

}  // namespace

#define TAVRIK_DEFINE(From, To) \
    value_type::To From##ObjectTo##To(Object* object) { return convert<ValueKind::k##From, value_type::To>(object); }
TAVRIK_VALUE_CONVERSIONS(TAVRIK_DEFINE)
#undef TAVRIK_DEFINE

#define TAVRIK_DEFINE(From)                                                 \
    std::int32_t From##ObjectHash(Object* object) {                         \
        return static_cast<std::int32_t>(core::hash_value(&boxed(object))); \
    }
TAVRIK_VALUE_HASHES(TAVRIK_DEFINE)
#undef TAVRIK_DEFINE

CString StringObjectToCString(Object* object) { return {core::plain_text(boxed(object).string) + 1}; }
PString StringObjectToPString(Object* object) {
    return {reinterpret_cast<const unsigned char*>(core::plain_text(boxed(object).string))};
}
WString StringObjectToWString(Object* object) { return RuntimeNewWString(view(boxed(object).string)); }
CFStringRef StringObjectToCFStringRef(Object* object) {
    return core::cf_string_of(String(boxed(object).string).release());
}

CString CStringObjectToCString(Object* object) { return own_form<ValueKind::kCString>(object); }
PString PStringObjectToPString(Object* object) { return own_form<ValueKind::kPString>(object); }
OSType OSTypeObjectToOSType(Object* object) { return own_form<ValueKind::kOSType>(object); }
WindowPtr WindowPtrObjectToWindowPtr(Object* object) { return own_form<ValueKind::kWindowPtr>(object); }

WString WStringObjectToWString(Object* object) {
    const WString text = own_form<ValueKind::kWString>(object);
    core::lock(text);
    return text;
}
CFStringRef CFStringRefObjectToCFStringRef(Object* object) {
    const CFStringRef text = own_form<ValueKind::kCFStringRef>(object);
    lock(core::string_of(text));
    return text;
}

namespace {

// For each target the conversions by kind of value; nullptr where a class has none.
template <class To>
using Conversions = std::array<To (*)(Object*), kValueKinds>;

struct ConversionTable {
    Conversions<value_type::Boolean> Boolean{};
    Conversions<value_type::Int32> Int32{};
    Conversions<value_type::UInt32> UInt32{};
    Conversions<value_type::Int64> Int64{};
    Conversions<value_type::UInt64> UInt64{};
    Conversions<value_type::Single> Single{};
    Conversions<value_type::Double> Double{};
    Conversions<value_type::Currency> Currency{};
    Conversions<value_type::Color> Color{};
    Conversions<value_type::String> String{};
    Conversions<value_type::Ptr> Ptr{};
};

template <class To, auto Via>
To same_bits(Object* object) {
    return static_cast<To>(Via(object));
}

constexpr ConversionTable kTable = [] {
    ConversionTable table;
#define TAVRIK_ROW(From, To) table.To[static_cast<std::size_t>(ValueKind::k##From)] = From##ObjectTo##To;
    TAVRIK_VALUE_CONVERSIONS(TAVRIK_ROW)
#undef TAVRIK_ROW
#define TAVRIK_ROW(From, To, Via) \
    table.To[static_cast<std::size_t>(ValueKind::k##From)] = same_bits<value_type::To, From##ObjectTo##Via>;
    TAVRIK_SHARED_CONVERSIONS(TAVRIK_ROW)
#undef TAVRIK_ROW
    return table;
}();

[[noreturn]] void raise_mismatch(const Object* variant, std::string_view wanted) {
    const ValueKind kind = core::kind_of(variant);
    std::string message(kind == ValueKind::kNone ? view(variant->record->name) : core::kind_name(kind));
    message.append(" can't be converted to ").append(wanted);
    RuntimeRaise("TypeMismatchException", message);
}

template <class To>
To unbox(Object* variant, const Conversions<To>& conversions, std::string_view wanted) {
    if (variant == nullptr) return To{};
    const auto conversion = conversions[static_cast<std::size_t>(core::kind_of(variant))];
    if (conversion == nullptr) raise_mismatch(variant, wanted);
    return conversion(variant);
}

}  // namespace

bool conversion::to_boolean(Object* variant) { return unbox(variant, kTable.Boolean, "Boolean"); }
std::int32_t conversion::to_int32(Object* variant) { return unbox(variant, kTable.Int32, "Int32"); }
std::uint32_t conversion::to_uint32(Object* variant) { return unbox(variant, kTable.UInt32, "UInt32"); }
std::int64_t conversion::to_int64(Object* variant) { return unbox(variant, kTable.Int64, "Int64"); }
std::uint64_t conversion::to_uint64(Object* variant) { return unbox(variant, kTable.UInt64, "UInt64"); }
float conversion::to_single(Object* variant) { return unbox(variant, kTable.Single, "Single"); }
double conversion::to_double(Object* variant) { return unbox(variant, kTable.Double, "Double"); }
Currency conversion::to_currency(Object* variant) { return unbox(variant, kTable.Currency, "Currency"); }
Color conversion::to_color(Object* variant) { return unbox(variant, kTable.Color, "Color"); }
String conversion::to_string(Object* variant) { return unbox(variant, kTable.String, "String"); }
void* conversion::to_ptr(Object* variant) { return unbox(variant, kTable.Ptr, "Ptr"); }

}  // namespace tavrik
