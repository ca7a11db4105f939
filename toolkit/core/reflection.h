#pragma once

#include <tavrik/class_record.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

#include <cstddef>
#include <cstring>
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
// Raises FunctionNotFoundException if the class has none of that name.
const PropertyRecord& need_property(std::string_view class_name, std::string_view property);

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

// Where a field that a class declares lies in its objects.
class FieldPlace {
public:
    constexpr FieldPlace(const char* class_name, const char* name) : class_name_(class_name), name_(name) {}

protected:
    std::int32_t offset();

private:
    const char* class_name_;
    const char* name_;
    std::int32_t offset_ = -1;
};

// A field that holds an object.
class ObjectField : FieldPlace {
public:
    using FieldPlace::FieldPlace;

    Ref<Object> get(const Object* object);
    void set(Object* object, Object* value);
    // Without a count of its own.
    Object* peek(const Object* object);
};

// A field that holds a number or a Boolean.
template <class T>
class PlainField : FieldPlace {
public:
    using FieldPlace::FieldPlace;

    T get(const Object* object) {
        T value;
        std::memcpy(&value, reinterpret_cast<const std::byte*>(object) + offset(), sizeof value);
        return value;
    }
    void set(Object* object, T value) {
        std::memcpy(reinterpret_cast<std::byte*>(object) + offset(), &value, sizeof value);
    }
};

// A property as a class declares it, with accessors of an object and a number.
template <class T>
class Property {
public:
    constexpr Property(const char* class_name, const char* name) : class_name_(class_name), name_(name) {}

    T get(Object* object) {
        const PropertyRecord& it = record();
        return reinterpret_cast<T (*)(Object*, std::int32_t)>(it.getter)(object, it.parameter);
    }
    template <class Argument>
    void set(Object* object, Argument value) {
        const PropertyRecord& it = record();
        reinterpret_cast<void (*)(Object*, std::int32_t, Argument)>(it.setter)(object, it.parameter, value);
    }

private:
    const PropertyRecord& record() {
        if (record_ == nullptr) record_ = &need_property(class_name_, name_);
        return *record_;
    }

    const char* class_name_;
    const char* name_;
    const PropertyRecord* record_ = nullptr;
};

}  // namespace tavrik::core
