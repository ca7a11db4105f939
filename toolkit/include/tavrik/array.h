#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <type_traits>

namespace tavrik {

// The element widths of CreateArray: a number of bytes for integers and Booleans, and these.
inline constexpr std::int32_t kReferenceWidth = 256;
inline constexpr std::int32_t kStringWidth = 257;
inline constexpr std::int32_t kSingleWidth = 258;
inline constexpr std::int32_t kDoubleWidth = 259;

// In the order in which the class layer knows them. Each takes the array first; the types of the rest are those of
// ArrayTable for the element's type.
struct ArrayOperations {
    Function read;
    Function write;
    Function resize;
    Function insert;
    Function remove;
    Function index_of;
    Function upper_bound;
};

struct Array : Object {
    const ArrayOperations* operations;
    // The elements, as ElementOf keeps them, in an array that has them itself; none in a view of another one.
    void* elements;
    std::int32_t size;

    bool has(std::int32_t index) const noexcept {
        return static_cast<std::uint32_t>(index) < static_cast<std::uint32_t>(size);
    }
};

// A new array, every dimension of which goes from 0 to `upper_bound` (-1: empty). Raises OutOfBoundsException for
// bounds below -1 and OutOfMemoryException.
TAVRIK_API Ref<Array> CreateArray(std::int32_t dimensions, std::int32_t width, std::int32_t upper_bound);

// How elements of a type travel: T is a class of objects, String, or a plain value.
template <class T>
struct ElementOf {
    using Result = Ref<Object>;
    using Argument = Object*;
    using Stored = Ref<Object>;
    static constexpr std::int32_t kWidth = kReferenceWidth;
};
template <>
struct ElementOf<String> {
    using Result = String;
    using Argument = const String&;
    using Stored = String;
    static constexpr std::int32_t kWidth = kStringWidth;
};
template <>
struct ElementOf<float> {
    using Result = float;
    using Argument = float;
    using Stored = float;
    static constexpr std::int32_t kWidth = kSingleWidth;
};
template <>
struct ElementOf<double> {
    using Result = double;
    using Argument = double;
    using Stored = double;
    static constexpr std::int32_t kWidth = kDoubleWidth;
};
// All integers of one width travel as the unsigned one.
template <class T>
requires std::is_integral_v<T>
struct ElementOf<T> {
    using Result = std::make_unsigned_t<std::conditional_t<std::is_same_v<T, bool>, std::uint8_t, T>>;
    using Argument = Result;
    using Stored = Result;
    static constexpr std::int32_t kWidth = sizeof(T);
};

template <class T>
struct ArrayTable {
    using Read = typename ElementOf<T>::Result (*)(Array*, std::int32_t index);
    using Write = void (*)(Array*, typename ElementOf<T>::Argument value, std::int32_t index);
    using Resize = void (*)(Array*, std::int32_t upper_bound);
    using Insert = void (*)(Array*, std::int32_t index, typename ElementOf<T>::Argument value);
    using Remove = void (*)(Array*, std::int32_t index);
    using IndexOf = std::int32_t (*)(Array*, typename ElementOf<T>::Argument value, std::int32_t start);
    using UpperBound = std::int32_t (*)(Array*, std::int32_t dimension);
};

// A one-dimensional array with the type of its elements. Raises OutOfBoundsException for an index outside.
template <class T>
struct ArrayOf : Array {
    using Argument = std::conditional_t<std::is_arithmetic_v<T>, T,
                                        std::conditional_t<std::is_same_v<T, String>, const String&, Arg<T>>>;

    static constexpr bool kIsReference = ElementOf<T>::kWidth == kReferenceWidth;

    static Ref<ArrayOf> make(std::int32_t upper_bound = -1) {
        return static_ref<ArrayOf>(CreateArray(1, ElementOf<T>::kWidth, upper_bound));
    }

    auto at(std::int32_t index) {
        if constexpr (kIsReference) {
            return static_ref<T>(read(index));
        } else {
            return static_cast<T>(read(index));
        }
    }
    // An object without a count of its own, where has() says that there is an element.
    T* peek(std::int32_t index) const noexcept requires(kIsReference) {
        return static_cast<T*>(static_cast<const Ref<Object>*>(elements)[index].object());
    }
    void set(std::int32_t index, Argument value) {
        as<typename ArrayTable<T>::Write>(operations->write)(this, plain(value), index);
    }
    void resize(std::int32_t bound) { as<typename ArrayTable<T>::Resize>(operations->resize)(this, bound); }
    void insert(std::int32_t index, Argument value) {
        as<typename ArrayTable<T>::Insert>(operations->insert)(this, index, plain(value));
    }
    void append(Argument value) { insert(upper_bound() + 1, value); }
    void remove(std::int32_t index) { as<typename ArrayTable<T>::Remove>(operations->remove)(this, index); }
    std::int32_t index_of(Argument value, std::int32_t start = 0) {
        return as<typename ArrayTable<T>::IndexOf>(operations->index_of)(this, plain(value), start);
    }
    std::int32_t upper_bound() { return as<typename ArrayTable<T>::UpperBound>(operations->upper_bound)(this, 1); }

private:
    typename ElementOf<T>::Result read(std::int32_t index) {
        if (has(index)) return static_cast<const typename ElementOf<T>::Stored*>(elements)[index];
        return as<typename ArrayTable<T>::Read>(operations->read)(this, index);
    }
    template <class Type>
    static Type as(Function function) {
        return reinterpret_cast<Type>(function);
    }
    static typename ElementOf<T>::Argument plain(Argument value) {
        if constexpr (kIsReference) {
            return value.object();
        } else {
            return static_cast<typename ElementOf<T>::Argument>(value);
        }
    }
};

}  // namespace tavrik
