#pragma once

#include "runtime/exceptions.h"

#include <string>

namespace tavrik::test {

// What `code` raises, or nil.
template <class Code>
Ref<Object> raised_by(Code code) {
    try {
        code();
    } catch (const RaisedException& raised) {
        return raised.exception;
    }
    return nullptr;
}

inline std::string class_of(const Ref<Object>& object) {
    return object ? std::string(view(object->record->name)) : "nothing";
}

inline std::string message_of(const Ref<Object>& exception) {
    const auto raised = check_cast<RuntimeException>(exception);
    return raised ? std::string(raised->Message().view()) : "";
}

template <class Code>
std::string class_raised_by(Code code) {
    return class_of(raised_by(code));
}

// Raises a new exception of the class.
template <class Exception>
[[noreturn]] void raise(std::string_view message = {}) {
    const Ref<Exception> exception = make<Exception>();
    exception->set_Message(String(message));
    RuntimeRaiseException(exception.object());
}

}  // namespace tavrik::test
