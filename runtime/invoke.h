#pragma once

#include "runtime/erased.h"
#include "runtime/structure.h"
#include "runtime/type_code.h"

#include <tavrik/invocation.h>
#include <tavrik/variant.h>

#include <type_traits>
#include <utility>

// The functions by which a method or an accessor is called with variants. There is one for each signature text, since
// all types of one type code are one type here.
namespace tavrik {
namespace detail {

template <class T>
struct Canonical {
    using Type = T;
};
template <class T>
struct Canonical<T*> {
    using Type = void*;
};
template <class T>
using CanonicalOf = typename Canonical<T>::Type;

// The record of a class that may not be built yet, and may not even be declared here: found by its name.
template <class T>
inline constinit ClassRecord* found_class = nullptr;

Ref<Object> checked_object(Ref<Object> element, ClassRecord*& found, const StringRecord* class_name);
Ref<Array> checked_array(Object* element, ClassRecord*& found, const StringRecord* class_name);
Ref<Array> viewed_array(Array* array, ClassRecord*& found, const StringRecord* class_name);

// ---- From a variant

template <class T>
T unbox(Object* variant) {
    if constexpr (std::is_same_v<T, bool>) {
        return VariantToBoolean(variant);
    } else if constexpr (std::is_same_v<T, std::int64_t>) {
        return VariantToInt64(variant);
    } else if constexpr (std::is_same_v<T, std::uint64_t>) {
        return VariantToUInt64(variant);
    } else if constexpr (std::is_enum_v<T> || (std::is_integral_v<T> && std::is_signed_v<T>)) {
        return static_cast<T>(VariantToInt32(variant));
    } else if constexpr (std::is_integral_v<T>) {
        return static_cast<T>(VariantToUInt32(variant));
    } else if constexpr (std::is_same_v<T, float>) {
        return VariantToSingle(variant);
    } else if constexpr (std::is_same_v<T, double>) {
        return VariantToDouble(variant);
    } else if constexpr (std::is_same_v<T, Currency>) {
        return VariantToCurrency(variant);
    } else if constexpr (std::is_same_v<T, Color>) {
        return VariantToColor(variant);
    } else if constexpr (std::is_same_v<T, String>) {
        return VariantToString(variant);
    } else if constexpr (std::is_same_v<T, void*>) {
        return VariantToPtr(variant);
    } else {
        static_assert(sizeof(T) == 0, "a member with a parameter of this type can't be called with variants");
    }
}

template <class S>
void fill_structure(S& structure, Object* variant) {
    VariantStructureTypeCheck(variant, String(class_name_record<S>));
    S::set_StringValue(structure, true, VariantToString(variant));
}

// An argument on its way from the array to the function, which holds what it must for the time of the call.
template <class T>
struct Passed {
    explicit Passed(const Ref<Object>& element) : value(unbox<T>(element.object())) {}
    Erased<T> erased() { return Erasure<T>::to(value); }

    T value;
};
template <>
struct Passed<const String&> : Passed<String> {
    using Passed<String>::Passed;
    const String& erased() const { return value; }
};
template <class T>
struct Passed<Arg<T>> {
    explicit Passed(Ref<Object> element)
        : value(checked_object(std::move(element), found_class<T>, class_name_record<T>)) {}
    Object* erased() const { return value.object(); }

    Ref<Object> value;
};
struct PassedAsItIs {
    explicit PassedAsItIs(Ref<Object> element) : value(std::move(element)) {}
    Object* erased() const { return value.object(); }

    Ref<Object> value;
};
template <>
struct Passed<Arg<Object>> : PassedAsItIs {
    using PassedAsItIs::PassedAsItIs;
};
template <>
struct Passed<Arg<Variant>> : PassedAsItIs {
    using PassedAsItIs::PassedAsItIs;
};
template <class T>
struct Passed<Arg<ArrayOf<T>>> {
    explicit Passed(const Ref<Object>& element) : value(array(element.object())) {}
    Object* erased() const { return value.object(); }

    static Ref<Array> array(Object* element) {
        if constexpr (std::is_same_v<T, std::int32_t>) {
            return VariantArrayAssignmentWithTypeCheck(kInt32Elements, element);
        } else if constexpr (std::is_same_v<T, Variant> || std::is_same_v<T, Object>) {
            return VariantArrayAssignmentWithTypeCheck(kVariantElements, element);
        } else {
            static_assert(ElementOf<T>::kWidth == kReferenceWidth,
                          "a member with an array parameter of this type can't be called with variants");
            return checked_array(element, found_class<T>, class_name_record<T>);
        }
    }

    Ref<Array> value;
};

// By reference the function gets a value of its own: what it leaves there is dropped.
template <class T>
struct Passed<T&> {
    explicit Passed(const Ref<Object>& element) : value(unbox<T>(element.object())) {}
    T& erased() { return value; }

    T value;
};
template <class T>
struct Passed<Ref<T>&> {
    explicit Passed(Ref<Object> element) : value(Passed<Arg<T>>(std::move(element)).value) {}
    Ref<Object>& erased() { return value; }

    Ref<Object> value;
};
template <IsStructure S>
struct Passed<S&> {
    explicit Passed(const Ref<Object>& element) { fill_structure(value, element.object()); }
    S& erased() { return value; }

    S value{};
};

// ---- To a variant

inline Ref<Object> box(bool value) { return BooleanToVariant(value); }
inline Ref<Object> box(std::int8_t value) { return Int32ToVariant(value); }
inline Ref<Object> box(std::int16_t value) { return Int32ToVariant(value); }
inline Ref<Object> box(std::int32_t value) { return Int32ToVariant(value); }
inline Ref<Object> box(std::int64_t value) { return Int64ToVariant(value); }
inline Ref<Object> box(std::uint8_t value) { return UInt32ToVariant(value); }
inline Ref<Object> box(std::uint16_t value) { return UInt32ToVariant(value); }
inline Ref<Object> box(std::uint32_t value) { return UInt32ToVariant(value); }
inline Ref<Object> box(std::uint64_t value) { return UInt64ToVariant(value); }
inline Ref<Object> box(float value) { return SingleToVariant(value); }
inline Ref<Object> box(double value) { return DoubleToVariant(value); }
inline Ref<Object> box(Currency value) { return CurrencyToVariant(value); }
inline Ref<Object> box(Color value) { return ColorToVariant(value); }
inline Ref<Object> box(const String& value) { return StringToVariant(value); }
inline Ref<Object> box(void* value) { return PtrToVariant(value); }
inline Ref<Object> box(CString value) { return CStringToVariant(value); }
inline Ref<Object> box(PString value) { return PStringToVariant(value); }
inline Ref<Object> box(WindowPtr value) { return WindowPtrToVariant(value); }
inline Ref<Object> box(OSType value) { return OSTypeToVariant(value); }
// The function gave a count, the variant takes its own.
Ref<Object> box(WString value);
Ref<Object> box(CFStringRef value);
inline Ref<Object> box(Ref<Object> value) { return value; }

template <class R>
struct Boxed {
    static Ref<Object> of(Erased<R> value) { return box(std::move(value)); }
};
template <class R>
requires std::is_enum_v<R>
struct Boxed<R> {
    static Ref<Object> of(std::int32_t value) { return box(value); }
};
template <class T>
struct Boxed<Ref<ArrayOf<T>>> {
    static Ref<Object> of(Ref<Object> value) {
        constexpr bool kOfClass =
            ElementOf<T>::kWidth == kReferenceWidth && !std::is_same_v<T, Variant> && !std::is_same_v<T, Object>;
        if constexpr (!kOfClass) {
            return value;
        } else {
            return viewed_array(static_cast<Array*>(value.object()), found_class<T>, class_name_record<T>);
        }
    }
};

// ---- Calls

template <std::size_t Index, class A>
struct PassedAt : Passed<A> {
    explicit PassedAt(ArrayOf<Variant>* arguments) : Passed<A>(arguments->at(Index)) {}
};

// The arguments of one call. Bases are made in their order, so each is converted before the next is read.
template <class Indices, class... A>
struct Arguments;
template <std::size_t... I, class... A>
struct Arguments<std::index_sequence<I...>, A...> : PassedAt<I, A>... {
    explicit Arguments([[maybe_unused]] ArrayOf<Variant>* arguments) : PassedAt<I, A>(arguments)... {}

    template <class R, class... Self>
    Ref<Object> call(Function function, Self*... self) {
        const auto typed = reinterpret_cast<Erased<R> (*)(Self * ..., Erased<A>...)>(function);
        if constexpr (std::is_void_v<R>) {
            typed(self..., static_cast<PassedAt<I, A>&>(*this).erased()...);
            return nullptr;
        } else {
            return Boxed<R>::of(typed(self..., static_cast<PassedAt<I, A>&>(*this).erased()...));
        }
    }
};

template <class R, class... A>
struct Thunk {
    static constexpr bool kTakesArguments = sizeof...(A) > 0;

    // With the target, or without one for a shared method.
    template <class... Self>
    static Ref<Object> call_function(Function function, Array* arguments, Self*... self) {
        if (kTakesArguments && arguments == nullptr) RaiseNilObjectException();
        Arguments<std::index_sequence_for<A...>, A...> passed(static_cast<ArrayOf<Variant>*>(arguments));
        return passed.template call<R>(function, self...);
    }

    static Ref<Object> call(Function function, Object* target, Array* arguments) {
        const Ref<Array> held_arguments(arguments);
        const Ref<Object> held_target(target);
        if (target == nullptr) RaiseNilObjectException();
        return call_function(function, arguments, target);
    }
    static Ref<Object> call_shared(Function function, Object*, Array* arguments) {
        const Ref<Array> held_arguments(arguments);
        return call_function(function, arguments);
    }
};

// A property of a class type or an array is served as any object.
template <class V>
struct PropertyValue {
    using Type = CanonicalOf<V>;
};
template <class T>
struct PropertyValue<Ref<T>> {
    using Type = Ref<Object>;
};

template <class V>
Ref<Object> read_value(Function getter, Object* target, std::int32_t parameter) {
    return Boxed<V>::of(reinterpret_cast<Erased<V> (*)(Object*, std::int32_t)>(getter)(target, parameter));
}

template <class V>
void write_value(Function setter, Object* target, std::int32_t parameter, Object* value) {
    if constexpr (std::is_same_v<V, Ref<Object>>) {
        reinterpret_cast<void (*)(Object*, std::int32_t, Object*)>(setter)(target, parameter, value);
    } else if constexpr (std::is_same_v<V, String>) {
        reinterpret_cast<void (*)(Object*, std::int32_t, const String&)>(setter)(target, parameter,
                                                                                 VariantToString(value));
    } else {
        reinterpret_cast<void (*)(Object*, std::int32_t, Erased<V>)>(setter)(target, parameter,
                                                                             Erasure<V>::to(unbox<V>(value)));
    }
}

}  // namespace detail

// The invokers of a signature, as records hold them.
template <class R, class... A>
Function invoker_of() {
    return reinterpret_cast<Function>(&detail::Thunk<detail::CanonicalOf<R>, detail::CanonicalOf<A>...>::call);
}
template <class R, class... A>
Function shared_invoker_of() {
    return reinterpret_cast<Function>(&detail::Thunk<detail::CanonicalOf<R>, detail::CanonicalOf<A>...>::call_shared);
}
template <class V>
Function read_invoker_of() {
    return reinterpret_cast<Function>(&detail::read_value<typename detail::PropertyValue<V>::Type>);
}
template <class V>
Function write_invoker_of() {
    return reinterpret_cast<Function>(&detail::write_value<typename detail::PropertyValue<V>::Type>);
}

}  // namespace tavrik
