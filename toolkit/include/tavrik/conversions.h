#pragma once

#include <tavrik/object.h>
#include <tavrik/platform_types.h>
#include <tavrik/string.h>
#include <tavrik/values.h>

// What the value classes convert to, as data: a row for each conversion, and the toolkit function of each.
namespace tavrik {

// The C++ types of the names in the rows.
namespace value_type {
using Int32 = std::int32_t;
using UInt32 = std::uint32_t;
using Int64 = std::int64_t;
using UInt64 = std::uint64_t;
using Boolean = bool;
using Single = float;
using Double = double;
using Color = tavrik::Color;
using String = tavrik::String;
using Currency = tavrik::Currency;
using Ptr = void*;
using CString = tavrik::CString;
using PString = tavrik::PString;
using WString = tavrik::WString;
using CFStringRef = tavrik::CFStringRef;
using OSType = tavrik::OSType;
using WindowPtr = tavrik::WindowPtr;
}  // namespace value_type

// clang-format off

// row(From, To): `_VariantFrom` converts to the type To by FromObjectToTo.
#define TAVRIK_VALUE_CONVERSIONS(row)                                                                                 \
    row(Boolean, Int32) row(Boolean, Int64) row(Boolean, Boolean) row(Boolean, Single) row(Boolean, Double)           \
    row(Boolean, Color) row(Boolean, String)                                                                          \
    row(Int32, Int32) row(Int32, Int64) row(Int32, UInt64) row(Int32, Boolean) row(Int32, Single) row(Int32, Double)  \
    row(Int32, Color) row(Int32, String) row(Int32, Currency) row(Int32, Ptr)                                         \
    row(UInt32, UInt32) row(UInt32, Int64) row(UInt32, UInt64) row(UInt32, Boolean) row(UInt32, Single)               \
    row(UInt32, Double) row(UInt32, Color) row(UInt32, String) row(UInt32, Currency) row(UInt32, Ptr)                 \
    row(Int64, Int32) row(Int64, UInt32) row(Int64, Int64) row(Int64, UInt64) row(Int64, Boolean) row(Int64, Single)  \
    row(Int64, Double) row(Int64, Color) row(Int64, String) row(Int64, Currency) row(Int64, Ptr)                      \
    row(UInt64, Int32) row(UInt64, UInt32) row(UInt64, Int64) row(UInt64, UInt64) row(UInt64, Boolean)                \
    row(UInt64, Single) row(UInt64, Double) row(UInt64, Color) row(UInt64, String) row(UInt64, Currency)              \
    row(UInt64, Ptr)                                                                                                  \
    row(Single, Int32) row(Single, UInt32) row(Single, Int64) row(Single, UInt64) row(Single, Boolean)                \
    row(Single, Single) row(Single, Double) row(Single, Color) row(Single, String) row(Single, Currency)              \
    row(Double, Int32) row(Double, UInt32) row(Double, Int64) row(Double, UInt64) row(Double, Boolean)                \
    row(Double, Single) row(Double, Double) row(Double, Color) row(Double, String) row(Double, Currency)              \
    row(Currency, Int32) row(Currency, UInt32) row(Currency, Int64) row(Currency, UInt64) row(Currency, Boolean)      \
    row(Currency, Single) row(Currency, Double) row(Currency, String) row(Currency, Currency)                         \
    row(Color, Int32) row(Color, Int64) row(Color, Boolean) row(Color, Single) row(Color, Double) row(Color, Color)   \
    row(Color, String)                                                                                                \
    row(String, Int32) row(String, UInt32) row(String, Int64) row(String, UInt64) row(String, Boolean)                \
    row(String, Single) row(String, Double) row(String, Color) row(String, String) row(String, Currency)              \
    row(String, Ptr)                                                                                                  \
    row(CString, Int32) row(CString, UInt32) row(CString, Int64) row(CString, UInt64) row(CString, Boolean)           \
    row(CString, Single) row(CString, Double) row(CString, Color) row(CString, String) row(CString, Currency)         \
    row(CString, Ptr)                                                                                                 \
    row(PString, Int32) row(PString, UInt32) row(PString, Int64) row(PString, UInt64) row(PString, Boolean)           \
    row(PString, Single) row(PString, Double) row(PString, Color) row(PString, String) row(PString, Currency)         \
    row(PString, Ptr)                                                                                                 \
    row(WString, Int32) row(WString, UInt32) row(WString, Int64) row(WString, UInt64) row(WString, Boolean)           \
    row(WString, Single) row(WString, Double) row(WString, Color) row(WString, String) row(WString, Currency)         \
    row(WString, Ptr)                                                                                                 \
    row(CFStringRef, Int32) row(CFStringRef, UInt32) row(CFStringRef, Int64) row(CFStringRef, UInt64)                 \
    row(CFStringRef, Boolean) row(CFStringRef, Single) row(CFStringRef, Double) row(CFStringRef, Color)               \
    row(CFStringRef, String) row(CFStringRef, Currency) row(CFStringRef, Ptr)                                         \
    row(Ptr, Int32) row(Ptr, UInt32) row(Ptr, Int64) row(Ptr, UInt64) row(Ptr, String) row(Ptr, Ptr)                  \
    row(OSType, Int32) row(OSType, UInt32) row(OSType, Int64) row(OSType, UInt64) row(OSType, String)                 \
    row(WindowPtr, String)                                                                                            \
    row(Structure, String)

// row(From, To, Via): `_VariantFrom` converts to To with the bits of FromObjectToVia.
#define TAVRIK_SHARED_CONVERSIONS(row) \
    row(Boolean, UInt32, Int32) row(Boolean, UInt64, Int64) \
    row(Color, UInt32, Int32) row(Color, UInt64, Int64) \
    row(Int32, UInt32, Int32) row(UInt32, Int32, UInt32)

// row(From, To): the forms that only a class of their own gives.
#define TAVRIK_OWN_CONVERSIONS(row) \
    row(String, CString) row(String, PString) row(String, WString) row(String, CFStringRef) \
    row(CString, CString) row(PString, PString) row(WString, WString) row(CFStringRef, CFStringRef) \
    row(OSType, OSType) row(WindowPtr, WindowPtr)

// row(From): every class has a hash.
#define TAVRIK_VALUE_HASHES(row) \
    row(Boolean) row(Int32) row(UInt32) row(Int64) row(UInt64) row(Single) row(Double) row(Currency) row(Color) \
    row(String) row(CString) row(PString) row(WString) row(CFStringRef) row(Ptr) row(OSType) row(WindowPtr) \
    row(Structure)

// The value of a value object of class From, as a To. They trust the class, and raise NilObjectException for nil.
// A CString or PString stays valid as long as the object; a WString or CFStringRef carries a count for the caller.
#define TAVRIK_DECLARE(From, To) TAVRIK_API value_type::To From##ObjectTo##To(Object* object);
TAVRIK_VALUE_CONVERSIONS(TAVRIK_DECLARE)
TAVRIK_OWN_CONVERSIONS(TAVRIK_DECLARE)
#undef TAVRIK_DECLARE

// The same for values that are the same key of a dictionary. Raise NilObjectException for nil.
#define TAVRIK_DECLARE(From) TAVRIK_API std::int32_t From##ObjectHash(Object* object);
TAVRIK_VALUE_HASHES(TAVRIK_DECLARE)
#undef TAVRIK_DECLARE

// clang-format on

}  // namespace tavrik
