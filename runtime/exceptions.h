#pragma once

#include "runtime/class.h"

namespace tavrik {

// The root of what can be raised. What tells exceptions apart is their class.
struct RuntimeException : Class<RuntimeException> {
    static const ClassDefinition& definition();

    // One line for each frame between the raise and the outermost call, the innermost first.
    Ref<ArrayOf<String>> Stack() { return dispatch<&RuntimeException::Stack>(this); }

    String Message() { return mMessage; }
    void set_Message(const String& message) { mMessage = message; }
    std::int32_t ErrorNumber() { return mErrorNumber; }
    void set_ErrorNumber(std::int32_t number) { mErrorNumber = number; }

    StringField mMessage;
    std::int32_t mErrorNumber;
};

// An exception that adds nothing but its class.
template <class Self>
struct PlainException : Class<Self, RuntimeException> {
    static const ClassDefinition& definition() {
        static constexpr ClassDefinition kDefinition = define<Self>({});
        return kDefinition;
    }
};

// clang-format off
struct EndException : PlainException<EndException> {};
struct FunctionNotFoundException : PlainException<FunctionNotFoundException> {};
struct TypeMismatchException : PlainException<TypeMismatchException> {};
struct KeyNotFoundException : PlainException<KeyNotFoundException> {};
struct OutOfBoundsException : PlainException<OutOfBoundsException> {};
struct OutOfMemoryException : PlainException<OutOfMemoryException> {};
struct ServiceNotAvailableException : PlainException<ServiceNotAvailableException> {};
struct StackOverflowException : PlainException<StackOverflowException> {};
struct UnsupportedFormatException : PlainException<UnsupportedFormatException> {};
struct ThreadEndException : PlainException<ThreadEndException> {};
struct ThreadAlreadyRunningException : PlainException<ThreadAlreadyRunningException> {};
struct NilObjectException : PlainException<NilObjectException> {};
struct IllegalCastException : PlainException<IllegalCastException> {};
struct InvalidParentException : PlainException<InvalidParentException> {};
// clang-format on

}  // namespace tavrik
