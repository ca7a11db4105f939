#pragma once

#include "runtime/class.h"

#include <tavrik/conversions.h>
#include <tavrik/variant.h>

namespace tavrik {

// Whether a value class converts to a type.
template <class Self, class To>
inline constexpr bool kConverts = false;

// What a variant's value is boxed in. The toolkit makes these objects, and finds the classes by their names.
template <class Self>
struct ValueClass : Class<Self, ValueObject> {
    static const ClassDefinition& definition();

    // Overloaded by its result: Operator_Convert<String>().
    template <class To>
    To Operator_Convert() {
        static_assert(kConverts<Self, To>, "the value class has no conversion to this type");
        return dispatch<&ValueClass::template Operator_Convert<To>>(this);
    }
    // The same for values that are the same key of a dictionary.
    std::int32_t Operator_Hash() { return dispatch<&ValueClass::Operator_Hash>(this); }
};

struct _VariantBoolean : ValueClass<_VariantBoolean> {};
struct _VariantInt32 : ValueClass<_VariantInt32> {};
struct _VariantUInt32 : ValueClass<_VariantUInt32> {};
struct _VariantInt64 : ValueClass<_VariantInt64> {};
struct _VariantUInt64 : ValueClass<_VariantUInt64> {};
struct _VariantSingle : ValueClass<_VariantSingle> {};
struct _VariantDouble : ValueClass<_VariantDouble> {};
struct _VariantCurrency : ValueClass<_VariantCurrency> {};
struct _VariantColor : ValueClass<_VariantColor> {};
struct _VariantCString : ValueClass<_VariantCString> {};
struct _VariantPString : ValueClass<_VariantPString> {};
struct _VariantWString : ValueClass<_VariantWString> {};
struct _VariantCFStringRef : ValueClass<_VariantCFStringRef> {};
struct _VariantPtr : ValueClass<_VariantPtr> {};
struct _VariantOSType : ValueClass<_VariantOSType> {};
struct _VariantWindowPtr : ValueClass<_VariantWindowPtr> {};

// The two that own something: their record names the functions of their end.
struct _VariantString : ValueClass<_VariantString> {
    void Destructor() { StringObjectDestructor(this); }
    void __exit() { StringObjectFinalizer(this); }
};
struct _VariantStructure : ValueClass<_VariantStructure> {
    void Destructor() { StructureObjectDestructor(this); }
    void __exit() { StructureObjectFinalizer(this); }
};

// clang-format off
#define TAVRIK_CONVERTS(From, To, ...) \
    template <> inline constexpr bool kConverts<_Variant##From, value_type::To> = true;
TAVRIK_VALUE_CONVERSIONS(TAVRIK_CONVERTS)
TAVRIK_SHARED_CONVERSIONS(TAVRIK_CONVERTS)
TAVRIK_OWN_CONVERSIONS(TAVRIK_CONVERTS)
#undef TAVRIK_CONVERTS

#define TAVRIK_DEFINED(From) \
    template <> const ClassDefinition& ValueClass<_Variant##From>::definition();
TAVRIK_VALUE_HASHES(TAVRIK_DEFINED)
#undef TAVRIK_DEFINED
// clang-format on

}  // namespace tavrik
