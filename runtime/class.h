#pragma once

#include "runtime/class_definition.h"
#include "runtime/dispatch.h"
#include "runtime/erased.h"
#include "runtime/field.h"
#include "runtime/rows.h"
#include "runtime/type_code.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <type_traits>

namespace tavrik {

// What a class of the class layer derives from: it adds no field, and reaches the class's record. Each class declares
// `static const ClassDefinition& definition()`, which its source file defines from its rows.
template <class Self, class Parent = Object>
struct Class : Parent {
    static inline constinit ClassRecord* __ctbl = nullptr;

    static void __ctblinit() {
        check_stack();
        if (__ctbl == nullptr) build_class(Self::definition(), __ctbl);
    }
    static ClassRecord* __Lookup() {
        if (__ctbl == nullptr) __ctblinit();
        return __ctbl;
    }
};

// An interface: a name, and operations defined by the order in which implementers fill their tables.
template <class Self>
struct Interface : Class<Self, Object> {
    static const ClassDefinition& definition() {
        static constexpr ClassDefinition kDefinition{.name = class_name_record<Self>, .is_interface = true};
        return kDefinition;
    }

protected:
    // What stands at a position of the interface's table for this object. Raises IllegalCastException without one.
    template <int Position, class Entry>
    static Entry operation(Object* object) {
        return reinterpret_cast<Entry>(RuntimeLookupInterfaceVtable(object, Self::__Lookup())[Position]);
    }
};

// A new object of a class.
template <class T>
Ref<T> make() {
    return static_ref<T>(RuntimeNewObject(T::__Lookup()));
}

// The object as a T, or raises IllegalCastException.
template <class T>
Ref<T> check_cast(Arg<Object> object) {
    return static_ref<T>(RuntimeCheckCast(object.object(), T::__Lookup()));
}

template <class T>
bool is_a(Arg<Object> object) {
    return RuntimeObjectIsa(object.object(), T::__Lookup());
}

namespace detail {

template <class T>
void make_fields(Object* object) {
    for (const FieldRow& field : T::definition().declared.fields) {
        if (field.is_array) field.make(object);
    }
}

template <class T>
void release_fields(Object* object) {
    for (const FieldRow& field : T::definition().declared.fields) {
        if (field.is_counted) field.release(object);
    }
    for (const PropertyRow& property : T::definition().declared.properties) {
        if (property.is_counted) property.release(object);
    }
}

// The function that stands in the record where the class forwards to the toolkit: one of its own.
template <class T, auto Forwarded>
void forward_init(Object* object) {
    Forwarded(object);
}
template <class T, auto Forwarded>
void forward_exit(Object* object) {
    Forwarded(object);
    release_fields<T>(object);
}

template <class Self, class Parent>
constexpr auto parent_lookup(const Class<Self, Parent>*) -> ClassRecord* (*)() {
    // The toolkit's own structs give room, and have no record.
    if constexpr (requires { &Parent::__Lookup; }) {
        return &Parent::__Lookup;
    } else {
        return nullptr;
    }
}

template <class Row>
constexpr bool any(std::span<const Row> rows, bool Row::*what) {
    return std::ranges::any_of(rows, what);
}

}  // namespace detail

// The two functions of an object's life that forward to the toolkit.
template <class T, auto Forwarded>
inline constexpr ForwarderRow init_forwards_to{true, &detail::forward_init<T, Forwarded>};
template <class T, auto Forwarded>
inline constexpr ForwarderRow exit_forwards_to{true, &detail::forward_exit<T, Forwarded>};

// The definition of class T from its declaration. A class that names no function of its own gets one that makes its
// array fields, and one that releases its fields in their order, if it has such fields.
template <class T>
consteval ClassDefinition define(const Declaration& declared) {
    static_assert(std::is_trivially_default_constructible_v<T> && std::is_trivially_destructible_v<T>,
                  "the fields of a class are Field, StringField or plain values: zero bytes are a new object");
    const bool makes = detail::any(declared.fields, &FieldRow::is_array);
    const bool releases = detail::any(declared.fields, &FieldRow::is_counted) ||
                          detail::any(declared.properties, &PropertyRow::is_counted);
    ClassDefinition definition{.name = class_name_record<T>};
    definition.parent = detail::parent_lookup(static_cast<const T*>(nullptr));
    definition.instance_size = sizeof(T);
    definition.declared = declared;
    definition.init = declared.init.given || !makes ? declared.init.function : &detail::make_fields<T>;
    definition.exit = declared.exit.given || !releases ? declared.exit.function : &detail::release_fields<T>;
    return definition;
}

}  // namespace tavrik
