#include "toolkit/core/class_state.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/release.h"
#include "toolkit/core/stack_trace.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <string>

namespace tavrik {
namespace {

struct ExceptionState : NativeState {
    core::StackTrace trace;
};

// A program that has not built the class all the same gets an object that can be raised and told by its name.
ClassRecord* exception_class(std::string_view name) {
    if (ClassRecord* const record = RuntimeFindClass(name)) return record;
    static std::vector<ClassRecord*> made;
    for (ClassRecord* const record : made) {
        if (view(record->name) == name) return record;
    }
    ClassRecord* const parent = RuntimeFindClass("RuntimeException");
    made.push_back(core::new_hidden_class(parent, std::string(name).c_str(),
                                          parent == nullptr ? std::int32_t{sizeof(Object)} : parent->instance_size));
    return made.back();
}

}  // namespace

Object* runtime_release_exception = nullptr;

void RuntimeRaiseException(Object* exception) {
    if (exception == nullptr) RaiseNilObjectException();
    if (exception->native == nullptr) exception->native = new ExceptionState;
    // Any object can be raised; only an exception has room for the note of where.
    auto* const state = dynamic_cast<ExceptionState*>(exception->native);
    if (state != nullptr && state->trace.empty()) state->trace = core::StackTrace::here();
    throw RaisedException{Ref<Object>(exception)};
}

void RuntimeReraiseException(Object* exception) { throw RaisedException{Ref<Object>(exception)}; }

void RuntimeRaise(std::string_view class_name, std::string_view message) {
    const Ref<Object> exception = RuntimeNewObject(exception_class(class_name));
    core::set_text_property(exception.object(), "Message", String(message));
    RuntimeRaiseException(exception.object());
}

void RaiseNilObjectException() { RuntimeRaise("NilObjectException", core::EventScope::last_failure()); }

namespace core {

void note_release_exception(Object* exception) noexcept {
    if (runtime_release_exception != nullptr) return RuntimeUnhandledException(exception);
    lock(exception);
    runtime_release_exception = exception;
}

}  // namespace core

Ref<Object> RuntimeTakeReleaseException() noexcept {
    return Ref<Object>::adopt(std::exchange(runtime_release_exception, nullptr));
}

void RuntimeExceptionInitializer(Object* exception) {
    if (exception->native == nullptr) exception->native = new ExceptionState;
}

void RuntimeExceptionFinalizer(Object* exception) { delete std::exchange(exception->native, nullptr); }

Ref<ArrayOf<String>> RuntimeExceptionStack(Object* exception) {
    auto lines = ArrayOf<String>::make();
    const auto* const state = dynamic_cast<const ExceptionState*>(exception->native);
    if (state == nullptr) return lines;
    for (const std::string& line : state->trace.lines()) lines->append(String(line));
    return lines;
}

}  // namespace tavrik
