#pragma once

#include <tavrik/class_record.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

#include <string_view>
#include <type_traits>

// How the core reaches classes: by name, through the class list and the tables of the records, as any late-bound caller
// does. The objects below are constants of a source file that remember what they found.
namespace tavrik::core {

// As RuntimeFindClass; raises FunctionNotFoundException if there is none.
ClassRecord* need_class(std::string_view name);

const PropertyRecord* find_property(const ClassRecord* record, std::string_view name);
// The same, letters of any case.
const PropertyRecord* find_property_any_case(const ClassRecord* record, std::string_view name);

// Calls the setter of a property of type String, if the object has one of that name.
void set_text_property(Object* object, std::string_view name, const String& value);
String text_property(Object* object, std::string_view name);
bool bool_property(Object* object, std::string_view name);
std::int32_t int_property(Object* object, std::string_view name);
void set_bool_property(Object* object, std::string_view name, bool value);

// The slot of the operation as the class declares it; raises FunctionNotFoundException if it has none.
std::int32_t find_slot(std::string_view class_name, std::string_view operation, std::string_view signature);
// A shared method of the class; raises FunctionNotFoundException if it has none.
Function find_shared(std::string_view class_name, std::string_view method, std::string_view signature);
std::int32_t find_event(std::string_view class_name, std::string_view event);
std::int32_t find_field(std::string_view class_name, std::string_view field);

template <class Call>
class Operation;

// A virtual operation of a class: Operation<bool(Object*)> close{"Window", "_UnifiedClose", "%b%b"}.
template <class R, class... A>
class Operation<R(A...)> {
public:
    constexpr Operation(const char* class_name, const char* name, const char* signature)
        : class_name_(class_name), name_(name), signature_(signature) {}

    R operator()(Object* object, A... arguments) {
        if (object == nullptr) RaiseNilObjectException();
        if (slot_ < 0) slot_ = find_slot(class_name_, name_, signature_);
        return reinterpret_cast<R (*)(Object*, A...)>(object->vtable[slot_])(object, arguments...);
    }

private:
    const char* class_name_;
    const char* name_;
    const char* signature_;
    std::int32_t slot_ = -1;
};

template <class Call>
class SharedOperation;

// A method of a class that takes no object.
template <class R, class... A>
class SharedOperation<R(A...)> {
public:
    constexpr SharedOperation(const char* class_name, const char* name, const char* signature)
        : class_name_(class_name), name_(name), signature_(signature) {}

    R operator()(A... arguments) {
        if (function_ == nullptr) function_ = find_shared(class_name_, name_, signature_);
        return reinterpret_cast<R (*)(A...)>(function_)(arguments...);
    }

private:
    const char* class_name_;
    const char* name_;
    const char* signature_;
    Function function_ = nullptr;
};

template <class Call>
class Event;

// An event of a class: without a handler nothing happens, and the result is false.
template <class R, class... A>
class Event<R(A...)> {
public:
    constexpr Event(const char* class_name, const char* name) : class_name_(class_name), name_(name) {}

    bool handled(Object* object) { return handler(object) != nullptr; }

    R operator()(Object* object, A... arguments) {
        const Function function = handler(object);
        if (function == nullptr) return R();
        return reinterpret_cast<R (*)(Object*, A...)>(function)(object, arguments...);
    }

private:
    Function handler(Object* object) {
        if (index_ < 0) index_ = find_event(class_name_, name_);
        return object->events[index_].handler;
    }

    const char* class_name_;
    const char* name_;
    std::int32_t index_ = -1;
};

// A field that a class declares, which holds an object.
class ObjectField {
public:
    constexpr ObjectField(const char* class_name, const char* name) : class_name_(class_name), name_(name) {}

    Ref<Object> get(const Object* object);
    void set(Object* object, Object* value);

private:
    std::int32_t offset();

    const char* class_name_;
    const char* name_;
    std::int32_t offset_ = -1;
};

}  // namespace tavrik::core
