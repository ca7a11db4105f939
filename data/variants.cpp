#include "data/variants.h"

// The rows of the value classes, which differ in little more than their names.
namespace tavrik {
namespace {

template <class To, auto Via>
To same_bits(Object* object) {
    return static_cast<To>(Via(object));
}

// clang-format off

// A row that forwards to FromObjectToTo, one that has the bits of FromObjectToVia, and that of the hash.
#define CONVERT(From, To) \
    operation<&_Variant##From::Operator_Convert<value_type::To>, From##ObjectTo##To>("Operator_Convert")
#define SHARE(From, To, Via) \
    operation<&_Variant##From::Operator_Convert<value_type::To>, \
              same_bits<value_type::To, From##ObjectTo##Via>>("Operator_Convert")
#define HASH(From) operation<&_Variant##From::Operator_Hash, From##ObjectHash>("Operator_Hash")

// What stands behind the integers of a number class, and the integers where no conversion is shared.
#define INTEGERS(From) CONVERT(From, Int32), CONVERT(From, UInt32), CONVERT(From, Int64), CONVERT(From, UInt64)
#define NUMBERS(From) CONVERT(From, Boolean), CONVERT(From, Single), CONVERT(From, Double)
#define TEXTS(From) CONVERT(From, Color), CONVERT(From, String), HASH(From)

constexpr OperationRow kBooleanRows[] = {
    CONVERT(Boolean, Int32), SHARE(Boolean, UInt32, Int32), CONVERT(Boolean, Int64), SHARE(Boolean, UInt64, Int64),
    NUMBERS(Boolean), TEXTS(Boolean)};

constexpr OperationRow kColorRows[] = {
    CONVERT(Color, Int32), SHARE(Color, UInt32, Int32), CONVERT(Color, Int64), SHARE(Color, UInt64, Int64),
    NUMBERS(Color), TEXTS(Color)};

constexpr OperationRow kCurrencyRows[] = {
    INTEGERS(Currency), NUMBERS(Currency), CONVERT(Currency, String), CONVERT(Currency, Currency), HASH(Currency)};

constexpr OperationRow kDoubleRows[] = {INTEGERS(Double), NUMBERS(Double), TEXTS(Double), CONVERT(Double, Currency)};
constexpr OperationRow kSingleRows[] = {INTEGERS(Single), NUMBERS(Single), TEXTS(Single), CONVERT(Single, Currency)};

constexpr OperationRow kInt32Rows[] = {
    CONVERT(Int32, Int32), SHARE(Int32, UInt32, Int32), CONVERT(Int32, Int64), CONVERT(Int32, UInt64),
    NUMBERS(Int32), TEXTS(Int32), CONVERT(Int32, Currency), CONVERT(Int32, Ptr)};

constexpr OperationRow kUInt32Rows[] = {
    SHARE(UInt32, Int32, UInt32), CONVERT(UInt32, UInt32), CONVERT(UInt32, Int64), CONVERT(UInt32, UInt64),
    NUMBERS(UInt32), TEXTS(UInt32), CONVERT(UInt32, Currency), CONVERT(UInt32, Ptr)};

constexpr OperationRow kInt64Rows[] = {
    INTEGERS(Int64), NUMBERS(Int64), TEXTS(Int64), CONVERT(Int64, Currency), CONVERT(Int64, Ptr)};

constexpr OperationRow kUInt64Rows[] = {
    INTEGERS(UInt64), NUMBERS(UInt64), TEXTS(UInt64), CONVERT(UInt64, Currency), CONVERT(UInt64, Ptr)};

constexpr OperationRow kStringRows[] = {
    INTEGERS(String), NUMBERS(String), TEXTS(String), CONVERT(String, Currency), CONVERT(String, Ptr),
    CONVERT(String, CString), CONVERT(String, WString), CONVERT(String, PString), CONVERT(String, CFStringRef),
    method<&_VariantString::Destructor, StringObjectDestructor>("Destructor").not_public(),
    method<&_VariantString::__exit, StringObjectFinalizer>("__exit").not_public()};

// The text of the platform in its four forms, each of which gives its own form last.
#define PLATFORM_TEXT(From) \
    HASH(From), CONVERT(From, Int32), CONVERT(From, Int64), CONVERT(From, Ptr), CONVERT(From, String), \
    CONVERT(From, UInt32), CONVERT(From, UInt64), CONVERT(From, Boolean), CONVERT(From, Color), \
    CONVERT(From, Currency), CONVERT(From, Double), CONVERT(From, Single), CONVERT(From, From)

constexpr OperationRow kCStringRows[] = {PLATFORM_TEXT(CString)};
constexpr OperationRow kPStringRows[] = {PLATFORM_TEXT(PString)};
constexpr OperationRow kWStringRows[] = {PLATFORM_TEXT(WString)};
constexpr OperationRow kCFStringRefRows[] = {PLATFORM_TEXT(CFStringRef)};

constexpr OperationRow kPtrRows[] = {
    CONVERT(Ptr, Int32), CONVERT(Ptr, Int64), CONVERT(Ptr, String), CONVERT(Ptr, UInt32), CONVERT(Ptr, UInt64),
    HASH(Ptr), CONVERT(Ptr, Ptr)};

constexpr OperationRow kOSTypeRows[] = {
    HASH(OSType), CONVERT(OSType, Int32), CONVERT(OSType, Int64), CONVERT(OSType, String), CONVERT(OSType, UInt32),
    CONVERT(OSType, UInt64), CONVERT(OSType, OSType)};

constexpr OperationRow kWindowPtrRows[] = {
    HASH(WindowPtr), CONVERT(WindowPtr, String), CONVERT(WindowPtr, WindowPtr)};

constexpr OperationRow kStructureRows[] = {
    CONVERT(Structure, String), HASH(Structure),
    method<&_VariantStructure::Destructor, StructureObjectDestructor>("Destructor").not_public(),
    method<&_VariantStructure::__exit, StructureObjectFinalizer>("__exit").not_public()};

// clang-format on

template <class T>
consteval Declaration declare(std::span<const OperationRow> rows) {
    Declaration declaration{.operations = rows};
    // The exit function of these two is a row of its own.
    if constexpr (requires { &T::__exit; }) {
        constexpr bool kIsString = std::is_same_v<T, _VariantString>;
        declaration.destructor = kIsString ? StringObjectDestructor : StructureObjectDestructor;
        declaration.exit = {.function = kIsString ? StringObjectFinalizer : StructureObjectFinalizer};
    }
    return declaration;
}

}  // namespace

#define TAVRIK_DEFINE(From)                                                                                            \
    template <>                                                                                                        \
    const ClassDefinition& ValueClass<_Variant##From>::definition() {                                                  \
        static constexpr ClassDefinition kDefinition = define<_Variant##From>(declare<_Variant##From>(k##From##Rows)); \
        return kDefinition;                                                                                            \
    }
TAVRIK_VALUE_HASHES(TAVRIK_DEFINE)
#undef TAVRIK_DEFINE

}  // namespace tavrik
