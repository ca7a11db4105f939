#pragma once

#include "runtime/class_definition.h"
#include "runtime/dispatch.h"
#include "runtime/erased.h"
#include "runtime/field.h"
#include "runtime/invoke.h"
#include "runtime/type_code.h"

#include <tavrik/fields.h>

#include <bit>
#include <cstddef>
#include <type_traits>

// The functions that make rows. Each takes the C++ members and functions that the row is about, and the name.
namespace tavrik {
namespace detail {

// How a row's function hands an argument or its result on to the function that the row names.
template <class To, class From>
decltype(auto) adapt(From&& from) {
    using Plain = std::remove_cvref_t<From>;
    if constexpr (std::is_same_v<Plain, Object*> && !std::is_same_v<To, Object*>) {
        if constexpr (std::is_pointer_v<To>) {
            return static_cast<To>(from);
        } else {
            return To::unchecked(from);
        }
    } else if constexpr (std::is_same_v<Plain, Ref<Object>> && std::is_lvalue_reference_v<To>) {
        return Erasure<To>::from(from);
    } else if constexpr (std::is_same_v<Plain, void*>) {
        return reinterpret_cast<To>(from);
    } else if constexpr (std::is_enum_v<To> && std::is_same_v<Plain, std::int32_t>) {
        return static_cast<To>(from);
    } else {
        return std::forward<From>(from);
    }
}

// Whether a function that takes `Given` can serve a member that takes `Wanted`.
template <class Given, class Wanted>
constexpr bool takes() {
    if constexpr (std::is_same_v<Erased<Wanted>, Object*>) {
        return std::is_same_v<Given, Wanted> || std::is_same_v<Given, Object*> || std::is_same_v<Given, Arg<Object>>;
    } else {
        return std::is_same_v<Given, Wanted>;
    }
}
template <class Given, class Wanted>
constexpr bool gives() {
    if constexpr (std::is_same_v<Erased<Wanted>, Ref<Object>>) {
        return std::is_same_v<Given, Wanted> || std::is_same_v<Given, Ref<Object>>;
    } else {
        return std::is_same_v<Given, Wanted>;
    }
}
template <class Self, class C>
constexpr bool is_self_of() {
    if constexpr (std::is_same_v<Self, Object*>) {
        return true;
    } else if constexpr (std::is_pointer_v<Self>) {
        return std::is_convertible_v<C*, Self>;
    } else {
        return false;
    }
}

// The function of exactly the erased type that stands in slot and record. C is the class whose row this is.
template <auto Key, auto Body, class C, class Member, class Given>
struct Entry;

template <auto Key, auto Body, class C, class R, class M, class... A, class BodyR, class Self, class... B>
struct Entry<Key, Body, C, R (M::*)(A...), BodyR (*)(Self, B...)> {
    static_assert(sizeof...(A) == sizeof...(B),
                  "the function in this row takes another number of arguments than the member it stands for");
    static_assert(is_self_of<Self, C>(), "the function in this row belongs to another class");
    static_assert(gives<BodyR, R>(), "the function in this row returns another type than the member it stands for");
    static_assert((takes<B, A>() && ...), "the function in this row takes other types than the member it stands for");

    static Erased<R> call(Object* self, Erased<A>... arguments) {
        return Body(adapt<Self>(self), adapt<B>(static_cast<Erased<A>>(arguments))...);
    }
    static Function function() { return reinterpret_cast<Function>(&call); }
};

template <class Member>
struct SignatureOfMember;
template <class R, class C, class... A>
struct SignatureOfMember<R (C::*)(A...)> {
    static constexpr StringRecord* record = signature_record<R, A...>;
    static constexpr FunctionSource invoker = &invoker_of<R, A...>;
};

constexpr std::int32_t flags_of_name(const char* name) {
    if (name[0] == '=') return kPublic | kAssignment;
    if (name[0] == '*') return kPublic | kVariableArguments;
    return kPublic;
}

template <auto Body>
Function itself() {
    return reinterpret_cast<Function>(+Body);
}

template <auto Member, auto Body, class C>
constexpr OperationRow make_operation(const char* name, Placing placing) {
    using M = decltype(Member);
    // Records without a slot that name one function have one, as long as it needs no adapting.
    const bool stands_itself =
        placing == Placing::kWithoutSlot && std::is_same_v<decltype(+Body), typename MemberTraits<M>::Entry>;
    return {.name = name,
            .signature = SignatureOfMember<M>::record,
            .placing = placing,
            .flags = flags_of_name(name),
            .slot = placing == Placing::kWithoutSlot ? nullptr : &slot_of<Member>,
            .function = stands_itself ? &itself<Body> : &Entry<Member, Body, C, M, decltype(+Body)>::function,
            .invoker = SignatureOfMember<M>::invoker};
}

template <auto Member>
using ClassOf = typename MemberTraits<decltype(Member)>::Class;

}  // namespace detail

// What stands in the slot of an operation without effect.
inline void no_effect(Object*) {}

// A virtual operation that the class adds: its public member, and what stands in its slot.
template <auto Member, auto Body>
constexpr OperationRow operation(const char* name) {
    return detail::make_operation<Member, Body, detail::ClassOf<Member>>(name, Placing::kNewSlot);
}

// Takes the slot of a parent's operation for class C.
template <class C, auto ParentMember, auto Body>
constexpr OperationRow overrides(const char* name) {
    using Parent = detail::ClassOf<ParentMember>;
    static_assert(std::is_base_of_v<Parent, C> && !std::is_same_v<Parent, C>,
                  "a row overrides an operation of a parent, and this member belongs to no parent of the class");
    return detail::make_operation<ParentMember, Body, C>(name, Placing::kSameSlot);
}

// A method without a slot.
template <auto Member, auto Body>
constexpr OperationRow method(const char* name) {
    return detail::make_operation<Member, Body, detail::ClassOf<Member>>(name, Placing::kWithoutSlot);
}

namespace detail {

template <auto F>
struct SharedEntry;
template <class R, class... A, R (*F)(A...)>
struct SharedEntry<F> {
    static constexpr StringRecord* signature = signature_record<R, A...>;
    static constexpr FunctionSource invoker = &shared_invoker_of<R, A...>;
    static Erased<R> call(Erased<A>... arguments) { return F(Erasure<A>::from(static_cast<Erased<A>>(arguments))...); }
    static Function function() { return reinterpret_cast<Function>(&call); }
};

}  // namespace detail

// A shared method: a static member function, which takes no object.
template <auto F>
constexpr OperationRow shared(const char* name) {
    return {.name = name,
            .signature = detail::SharedEntry<F>::signature,
            .placing = Placing::kWithoutSlot,
            .flags = kPublic | kShared,
            .slot = nullptr,
            .function = &detail::SharedEntry<F>::function,
            .invoker = detail::SharedEntry<F>::invoker};
}

namespace detail {

template <auto F>
Function as_function() {
    return reinterpret_cast<Function>(F);
}

// ---- Fields: the accessors are shared by all fields of a type.

template <class T>
T get_bits(const void* object, std::int32_t offset) {
    return *reinterpret_cast<const T*>(static_cast<const std::byte*>(object) + offset);
}
template <class T>
void set_bits(void* object, std::int32_t offset, T value) {
    *reinterpret_cast<T*>(static_cast<std::byte*>(object) + offset) = value;
}

template <class T, auto Getter, auto Setter>
struct PlainAccess {
    using Value = T;
    using Argument = T;
    static T get(Object* object, std::int32_t offset) { return Getter(object, offset); }
    static void set(Object* object, std::int32_t offset, T value) { Setter(object, offset, value); }
};
template <class T>
struct PointerAccess {
    using Value = T;
    using Argument = void*;
    static void* get(Object* object, std::int32_t offset) {
        return reinterpret_cast<void*>(get_bits<T>(object, offset));
    }
    static void set(Object* object, std::int32_t offset, void* value) {
        set_bits<T>(object, offset, reinterpret_cast<T>(value));
    }
};
struct StringAccess {
    using Value = String;
    using Argument = const String&;
    static String get(Object* object, std::int32_t offset) { return stringGetter(object, offset); }
    static void set(Object* object, std::int32_t offset, const String& value) { stringSetter(object, offset, value); }
};
struct ObjectAccess {
    static Ref<Object> get(Object* object, std::int32_t offset) { return objGetter(object, offset); }
    static void set(Object* object, std::int32_t offset, Object* value) { objSetter(object, offset, value); }
};

template <class F>
struct FieldAccess {
    static_assert(sizeof(F) == 0, "a field of this type has no accessors");
};
// clang-format off
template <> struct FieldAccess<bool> : PlainAccess<bool, boolGetter, boolSetter> {};
template <> struct FieldAccess<std::int32_t> : PlainAccess<std::int32_t, intGetter, intSetter> {};
template <> struct FieldAccess<std::int16_t> : PlainAccess<std::int32_t, shortGetter, shortSetter> {};
template <> struct FieldAccess<double> : PlainAccess<double, doubleGetter, doubleSetter> {};
template <> struct FieldAccess<Color> : PlainAccess<Color, get_bits<Color>, set_bits<Color>> {};
template <> struct FieldAccess<void*> : PlainAccess<void*, get_bits<void*>, set_bits<void*>> {};
template <> struct FieldAccess<ClassRecord*> : PointerAccess<ClassRecord*> {};
template <> struct FieldAccess<Function> : PointerAccess<Function> {};
template <> struct FieldAccess<StringField> : StringAccess {};
// clang-format on
template <class T>
struct FieldAccess<Field<T>> : ObjectAccess {
    using Value = Ref<T>;
    using Argument = Object*;
};

template <class F>
inline constexpr bool is_counted = false;
template <>
inline constexpr bool is_counted<StringField> = true;
template <class T>
inline constexpr bool is_counted<Field<T>> = true;

template <class F>
inline constexpr bool is_array = false;
template <class T>
inline constexpr bool is_array<Field<ArrayOf<T>>> = true;

template <auto Member>
struct FieldEntry;
template <class C, class F, F C::*Member>
struct FieldEntry<Member> {
    using Type = F;
    using Access = FieldAccess<F>;

    // Under the common C++ ABI a pointer to a field is the field's offset.
    static std::int32_t offset() {
        static_assert(sizeof(Member) == sizeof(std::ptrdiff_t));
        return static_cast<std::int32_t>(std::bit_cast<std::ptrdiff_t>(Member));
    }
    static void make(Object* object) {
        if constexpr (is_array<F>) {
            auto& array = static_cast<C*>(object)->*Member;
            array = std::remove_pointer_t<decltype(array.get())>::make();
        }
    }
    static void release(Object* object) {
        if constexpr (is_counted<F>) static_cast<C*>(object)->*Member = nullptr;
    }
};

// A field named `m...` isn't for application code.
constexpr std::int32_t flags_of_field(const char* name) {
    const bool hidden = name[0] == 'm' && name[1] >= 'A' && name[1] <= 'Z';
    return hidden ? kWritable : kPublic | kWritable;
}

// ---- Accessors: functions of an object and a number, which they don't look at.

template <auto Getter>
struct GetterEntry;
template <class R, class C, R (C::*Getter)()>
struct GetterEntry<Getter> {
    using Value = R;
    static Erased<R> call(Object* object, std::int32_t) { return (static_cast<C*>(object)->*Getter)(); }
};

template <auto Setter>
struct SetterEntry;
template <class C, class V, void (C::*Setter)(V)>
struct SetterEntry<Setter> {
    using Argument = V;
    static void call(Object* object, std::int32_t, Erased<V> value) {
        (static_cast<C*>(object)->*Setter)(Erasure<V>::from(static_cast<Erased<V>>(value)));
    }
};

// What an argument is called where it stands alone: a String for const String&.
template <class T>
struct ArgumentOfValue {
    using Type = T;
};
template <>
struct ArgumentOfValue<String> {
    using Type = const String&;
};
template <class T>
struct ArgumentOfValue<Ref<T>> {
    using Type = Arg<T>;
};
template <class T>
using ArgumentOf = typename ArgumentOfValue<T>::Type;

// And back.
template <class A>
struct ValueOfArgument {
    using Type = A;
};
template <>
struct ValueOfArgument<const String&> {
    using Type = String;
};
template <class T>
struct ValueOfArgument<Arg<T>> {
    using Type = Ref<T>;
};
template <class A>
using ValueOf = typename ValueOfArgument<A>::Type;

template <class V>
struct IgnoringSetter {
    static void call(Object*, std::int32_t, Erased<V>) {}
};

template <auto Member, auto Getter>
struct StoredGetter {
    using Access = typename FieldEntry<Member>::Access;
    static Erased<typename Access::Value> call(Object* object, std::int32_t) {
        return Getter(object, FieldEntry<Member>::offset());
    }
};
template <auto Member, auto Setter>
struct StoredSetter {
    using Access = typename FieldEntry<Member>::Access;
    static void call(Object* object, std::int32_t, typename Access::Argument value) {
        Setter(object, FieldEntry<Member>::offset(), value);
    }
};

template <class Entry, class R>
constexpr AccessorRow getter_row() {
    return {.signature = signature_record<R, std::int32_t>,
            .function = &as_function<&Entry::call>,
            .invoker = &invoker_of<R, std::int32_t>,
            .property_invoker = &read_invoker_of<R>};
}
template <class Entry, class V>
constexpr AccessorRow setter_row() {
    return {.signature = signature_record<void, std::int32_t, V>,
            .function = &as_function<&Entry::call>,
            .invoker = &invoker_of<void, std::int32_t, V>,
            .property_invoker = &write_invoker_of<ValueOf<V>>};
}

struct None {};
struct Ignored {};

template <auto Setter, class Value>
constexpr AccessorRow setter_of_property() {
    using Argument = ArgumentOf<Value>;
    using S = std::remove_cvref_t<decltype(Setter)>;
    if constexpr (std::is_same_v<S, None>) {
        return {};
    } else if constexpr (std::is_same_v<S, Ignored>) {
        return setter_row<IgnoringSetter<Argument>, Argument>();
    } else {
        static_assert(std::is_same_v<typename SetterEntry<Setter>::Argument, Argument>,
                      "the setter in this row takes another type than the getter returns");
        return setter_row<SetterEntry<Setter>, Argument>();
    }
}

}  // namespace detail

// A setter that exists and does nothing.
inline constexpr detail::Ignored ignored{};

// A field with a record of its own.
template <auto Member>
constexpr FieldRow field(const char* name) {
    using Entry = detail::FieldEntry<Member>;
    using Access = typename Entry::Access;
    return {.name = name,
            .type_code = type_code_record<typename Access::Value>,
            .flags = detail::flags_of_field(name),
            .offset = &Entry::offset,
            .getter = &detail::as_function<&Access::get>,
            .setter = &detail::as_function<&Access::set>,
            .read_invoker = &read_invoker_of<typename Access::Value>,
            .write_invoker = &write_invoker_of<typename Access::Value>,
            .is_array = detail::is_array<typename Entry::Type>,
            .is_counted = detail::is_counted<typename Entry::Type>,
            .make = &Entry::make,
            .release = &Entry::release};
}

namespace detail {

template <class T>
constexpr StringRecord* type_code_of_global(const Field<T>*) {
    return type_code_record<Ref<T>>;
}

}  // namespace detail

// A field that all objects of the class share: a static Field. It has a record, and no accessors.
template <auto Global>
constexpr FieldRow shared_field(const char* name) {
    return {.name = name, .type_code = detail::type_code_of_global(Global), .flags = kShared | kWritable};
}

// A computed property: its public members. Without a setter it can only be read.
template <auto Getter, auto Setter = detail::None{}>
constexpr PropertyRow property(const char* name) {
    using Value = typename detail::GetterEntry<Getter>::Value;
    return {.name = name,
            .type_code = type_code_record<Value>,
            .getter = detail::getter_row<detail::GetterEntry<Getter>, Value>(),
            .setter = detail::setter_of_property<Setter, Value>()};
}

// A property that can't be read.
template <auto Setter>
constexpr PropertyRow write_only(const char* name) {
    using Argument = typename detail::SetterEntry<Setter>::Argument;
    return {.name = name,
            .type_code = type_code_record<Argument>,
            .setter = detail::setter_row<detail::SetterEntry<Setter>, Argument>()};
}

// A property whose value lies in a field without a record. The functions take the object, the field's offset and the
// value, as those of <tavrik/fields.h> do.
template <auto Member, auto Setter = &detail::FieldEntry<Member>::Access::set,
          auto Getter = &detail::FieldEntry<Member>::Access::get>
constexpr PropertyRow stored(const char* name) {
    using Entry = detail::FieldEntry<Member>;
    using Value = typename Entry::Access::Value;
    using Argument = detail::ArgumentOf<Value>;
    return {.name = name,
            .type_code = type_code_record<Value>,
            .getter = detail::getter_row<detail::StoredGetter<Member, Getter>, Value>(),
            .setter = detail::setter_row<detail::StoredSetter<Member, Setter>, Argument>(),
            .is_counted = detail::is_counted<typename Entry::Type>,
            .release = &Entry::release};
}

// The same for a value that can't be read. The record tells the toolkit where it lies.
template <auto Member>
constexpr PropertyRow stored_write_only(const char* name) {
    PropertyRow row = stored<Member>(name);
    row.getter = {};
    row.offset = &detail::FieldEntry<Member>::offset;
    return row;
}

// A field with a record of its own that stands among the properties. The row is a constant of the source file.
constexpr PropertyRow among_properties(const FieldRow& row) {
    return {.name = row.name,
            .type_code = row.type_code,
            .is_counted = row.is_counted,
            .release = row.release,
            .field = &row};
}

// ---- Events and interfaces

// An event that the class adds.
template <class F>
constexpr EventRow event(const char* name, Event<F>& added) {
    return {.name = name, .index = &added.index};
}

// The class's own handler of an event of its parent: one of its virtual operations.
template <auto Member, class F>
constexpr HandlerRow handles(const char* name, const Event<F>& inherited) {
    static_assert(std::is_same_v<typename Event<F>::Handler, typename MemberTraits<decltype(Member)>::Entry>,
                  "the operation in this row takes or returns other types than the event that it handles");
    return {.event = name, .index = &inherited.index, .slot = &slot_of<Member>};
}

namespace detail {

template <auto... Members>
inline constexpr const std::int32_t* slots_of[] = {&slot_of<Members>...};

}  // namespace detail

// The class's operations that fill its table for an interface, in the interface's order.
template <class I, auto... Members>
constexpr InterfaceRow implements() {
    return {.lookup = &I::__Lookup, .operation_count = sizeof...(Members), .slots = detail::slots_of<Members...>};
}

}  // namespace tavrik
