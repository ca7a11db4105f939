#pragma once

#include <tavrik/class_record.h>
#include <tavrik/object.h>
#include <tavrik/platform_types.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

namespace tavrik {

// What a value object holds.
enum class ValueKind : std::uint8_t {
    kNone,  // no value object at all
    kBoolean,
    kInt32,
    kUInt32,
    kInt64,
    kUInt64,
    kSingle,
    kDouble,
    kCurrency,
    kColor,
    kString,
    kCString,
    kPString,
    kWString,
    kCFStringRef,
    kPtr,
    kOSType,
    kWindowPtr,
    kStructure,
};
inline constexpr std::size_t kValueKinds = 19;

// A value that is no object, boxed in one. What the class layer declares for its value classes is this room. A value
// object doesn't change after it is made.
struct ValueObject : Object {
    union {
        bool boolean;
        std::int32_t int32;
        std::uint32_t uint32;
        std::int64_t int64;
        std::uint64_t uint64;
        float float32;
        double float64;
        Currency currency;
        Color color;
        StringRecord* string;
        CString c_string;
        PString p_string;
        WString w_string;
        CFStringRef cf_string;
        void* pointer;
        OSType os_type;
        WindowPtr window;
    };
};

// The classes of the value objects, by kind; nil before the first value of the kind is boxed.
extern TAVRIK_API ClassRecord* runtime_value_classes[kValueKinds];

inline bool boxes(const Object* variant, ValueKind kind) noexcept {
    return variant != nullptr && variant->record == runtime_value_classes[static_cast<std::size_t>(kind)];
}

// Value to variant: a new value object. Raise OutOfMemoryException. The counted texts get a count of their own, the
// plain ones are copied.
TAVRIK_API Ref<Variant> BooleanToVariant(bool value);
TAVRIK_API Ref<Variant> Int32ToVariant(std::int32_t value);
TAVRIK_API Ref<Variant> UInt32ToVariant(std::uint32_t value);
TAVRIK_API Ref<Variant> Int64ToVariant(std::int64_t value);
TAVRIK_API Ref<Variant> UInt64ToVariant(std::uint64_t value);
TAVRIK_API Ref<Variant> SingleToVariant(float value);
TAVRIK_API Ref<Variant> DoubleToVariant(double value);
TAVRIK_API Ref<Variant> CurrencyToVariant(Currency value);
TAVRIK_API Ref<Variant> ColorToVariant(Color value);
TAVRIK_API Ref<Variant> StringToVariant(const String& value);
TAVRIK_API Ref<Variant> CStringToVariant(CString value);
TAVRIK_API Ref<Variant> PStringToVariant(PString value);
TAVRIK_API Ref<Variant> WStringToVariant(WString value);
TAVRIK_API Ref<Variant> CFStringRefToVariant(CFStringRef value);
TAVRIK_API Ref<Variant> PtrToVariant(void* value);
TAVRIK_API Ref<Variant> OSTypeToVariant(OSType value);
TAVRIK_API Ref<Variant> WindowPtrToVariant(WindowPtr value);
// The bytes of a structure, with its name.
TAVRIK_API Ref<Variant> StructureToVariant(const String& name, const String& bytes);

// Variant to a value of another kind than the one that it holds.
namespace conversion {
TAVRIK_API bool to_boolean(Object* variant);
TAVRIK_API std::int32_t to_int32(Object* variant);
TAVRIK_API std::uint32_t to_uint32(Object* variant);
TAVRIK_API std::int64_t to_int64(Object* variant);
TAVRIK_API std::uint64_t to_uint64(Object* variant);
TAVRIK_API float to_single(Object* variant);
TAVRIK_API double to_double(Object* variant);
TAVRIK_API Currency to_currency(Object* variant);
TAVRIK_API Color to_color(Object* variant);
TAVRIK_API String to_string(Object* variant);
TAVRIK_API void* to_ptr(Object* variant);
}  // namespace conversion

// Variant to value. nil unboxes to zero, false and the empty string. Raise TypeMismatchException, naming both kinds,
// where the value's class has no such conversion, and for objects that are no values.
inline bool VariantToBoolean(Object* variant) {
    if (boxes(variant, ValueKind::kBoolean)) return static_cast<ValueObject*>(variant)->boolean;
    return conversion::to_boolean(variant);
}
inline std::int32_t VariantToInt32(Object* variant) {
    if (boxes(variant, ValueKind::kInt32)) return static_cast<ValueObject*>(variant)->int32;
    return conversion::to_int32(variant);
}
inline std::uint32_t VariantToUInt32(Object* variant) {
    if (boxes(variant, ValueKind::kUInt32)) return static_cast<ValueObject*>(variant)->uint32;
    return conversion::to_uint32(variant);
}
inline std::int64_t VariantToInt64(Object* variant) {
    if (boxes(variant, ValueKind::kInt64)) return static_cast<ValueObject*>(variant)->int64;
    return conversion::to_int64(variant);
}
inline std::uint64_t VariantToUInt64(Object* variant) {
    if (boxes(variant, ValueKind::kUInt64)) return static_cast<ValueObject*>(variant)->uint64;
    return conversion::to_uint64(variant);
}
inline float VariantToSingle(Object* variant) {
    if (boxes(variant, ValueKind::kSingle)) return static_cast<ValueObject*>(variant)->float32;
    return conversion::to_single(variant);
}
inline double VariantToDouble(Object* variant) {
    if (boxes(variant, ValueKind::kDouble)) return static_cast<ValueObject*>(variant)->float64;
    return conversion::to_double(variant);
}
inline Currency VariantToCurrency(Object* variant) {
    if (boxes(variant, ValueKind::kCurrency)) return static_cast<ValueObject*>(variant)->currency;
    return conversion::to_currency(variant);
}
inline Color VariantToColor(Object* variant) {
    if (boxes(variant, ValueKind::kColor)) return static_cast<ValueObject*>(variant)->color;
    return conversion::to_color(variant);
}
inline String VariantToString(Object* variant) {
    if (boxes(variant, ValueKind::kString)) return String(static_cast<ValueObject*>(variant)->string);
    return conversion::to_string(variant);
}
inline void* VariantToPtr(Object* variant) {
    if (boxes(variant, ValueKind::kPtr)) return static_cast<ValueObject*>(variant)->pointer;
    return conversion::to_ptr(variant);
}

// Forwarded to by _VariantString and _VariantStructure.
TAVRIK_API void StringObjectDestructor(Object* object);
TAVRIK_API void StringObjectFinalizer(Object* object);
TAVRIK_API void StructureObjectDestructor(Object* object);
TAVRIK_API void StructureObjectFinalizer(Object* object);

}  // namespace tavrik
