#pragma once

#include <tavrik/array.h>
#include <tavrik/class_record.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

// Calls of functions that are known only by their record.
namespace tavrik {

// The invoker of a method record: converts the variants, calls the function, boxes its result.
using Invoker = Ref<Object> (*)(Function function, Object* target, Array* arguments);
// The invokers of a property record.
using ReadInvoker = Ref<Object> (*)(Function getter, Object* target, std::int32_t parameter);
using WriteInvoker = void (*)(Function setter, Object* target, std::int32_t parameter, Object* value);

// A record without a function can't be called: raises FunctionNotFoundException.
[[noreturn]] TAVRIK_API void RuntimeRaiseNoFunction();

// Raise what the conversions and the function raise. The result belongs to the caller.
inline Ref<Object> RuntimeGenericInvoker(Function invoker, Function function, Object* target, Array* arguments) {
    if (invoker == nullptr) RuntimeRaiseNoFunction();
    return reinterpret_cast<Invoker>(invoker)(function, target, arguments);
}
// nil targets raise NilObjectException.
inline Ref<Object> RuntimeGenericGetter(Function read_invoker, Function getter, Object* target,
                                        std::int32_t parameter) {
    if (target == nullptr) RaiseNilObjectException();
    return reinterpret_cast<ReadInvoker>(read_invoker)(getter, target, parameter);
}
inline void RuntimeGenericSetter(Function write_invoker, Function setter, Object* target, std::int32_t parameter,
                                 Object* value) {
    if (target == nullptr) RaiseNilObjectException();
    reinterpret_cast<WriteInvoker>(write_invoker)(setter, target, parameter, value);
}

// What the elements of an array argument have to be, where it is no class.
inline constexpr std::uintptr_t kInt32Elements = 0;
inline constexpr std::uintptr_t kVariantElements = 4;

// The variant as an array of the elements that a parameter takes: a class reference, or one of the kinds above. nil
// passes as nil. Raises TypeMismatchException for what is no such array, and IllegalCastException for an element of
// another class. A view made by RuntimeCreateArrayCastWrapper comes out as the array behind it.
TAVRIK_API Ref<Array> VariantArrayAssignmentWithTypeCheck(std::uintptr_t element, Object* variant);
// A view of an array of objects that takes only objects of that class and nil: others raise IllegalCastException. The
// elements are those of the array. nil gives nil.
TAVRIK_API Ref<Array> RuntimeCreateArrayCastWrapper(Array* array, const ClassRecord* element_class);

// Raises TypeMismatchException unless the variant boxes a structure of that name.
TAVRIK_API void VariantStructureTypeCheck(Object* variant, const String& name);
// Puts bytes into a structure: what `size` bytes from `offset` on don't hold is cut off, what is missing is zero.
TAVRIK_API void RuntimeSetStructureString(void* structure, std::int32_t offset, std::int32_t size, const String& bytes);

}  // namespace tavrik
