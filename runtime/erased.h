#pragma once

#include <tavrik/array.h>
#include <tavrik/object.h>
#include <tavrik/string.h>

#include <type_traits>

// The types with which functions stand in slots and records: objects without their class. A function is always called
// through a pointer of the type that it was made with.
namespace tavrik {

template <class T>
struct Erasure {
    using Type = T;
    static Type to(Type value) { return value; }
    static T from(Type value) { return value; }
};
template <class T>
struct Erasure<Ref<T>> {
    using Type = Ref<Object>;
    static Type to(Ref<T> value) { return value; }
    static Ref<T> from(Type value) { return static_ref<T>(std::move(value)); }
};
template <class T>
struct Erasure<Arg<T>> {
    using Type = Object*;
    static Type to(Arg<T> value) { return value.object(); }
    static Arg<T> from(Type value) { return Arg<T>::unchecked(value); }
};
template <class T>
struct Erasure<Ref<T>&> {
    using Type = Ref<Object>&;
    static Type to(Ref<T>& value) { return reinterpret_cast<Ref<Object>&>(value); }
    static Ref<T>& from(Type value) { return reinterpret_cast<Ref<T>&>(value); }
};
template <>
struct Erasure<void> {
    using Type = void;
};
// All that has the type code of a pointer.
template <class T>
requires(!std::is_same_v<T, Object>) struct Erasure<T*> {
    using Type = void*;
    static Type to(T* value) { return reinterpret_cast<void*>(value); }
    static T* from(Type value) { return reinterpret_cast<T*>(value); }
};
template <class T>
requires std::is_enum_v<T>
struct Erasure<T> {
    using Type = std::int32_t;
    static Type to(T value) { return static_cast<std::int32_t>(value); }
    static T from(Type value) { return static_cast<T>(value); }
};

template <class T>
using Erased = typename Erasure<T>::Type;

// What a pointer to a public member tells.
template <class M>
struct MemberTraits;

template <class R, class C, class... A>
struct MemberTraits<R (C::*)(A...)> {
    using Class = C;
    using Result = R;
    // What stands in the member's slot and record.
    using Entry = Erased<R> (*)(Object*, Erased<A>...);

    template <template <class, class, class...> class To>
    using Apply = To<C, R, A...>;
};

// Chooses one of several members of a name: pick<String(Arg<FileType>)>(&FileType::Operator_Add).
template <class F>
struct Pick;
template <class R, class... A>
struct Pick<R(A...)> {
    template <class C>
    constexpr auto operator()(R (C::*member)(A...)) const {
        return member;
    }
};
template <class F>
inline constexpr Pick<F> pick{};

}  // namespace tavrik
