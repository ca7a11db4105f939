#include "toolkit/core/array.h"

#include "toolkit/core/class_state.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace tavrik {
namespace {

template <class T>
using Stored = typename ElementOf<T>::Stored;

template <class T>
struct ArrayState : NativeState {
    std::vector<Stored<T>> elements;
    std::int32_t dimensions = 1;
    std::int32_t upper_bound = -1;  // of each dimension, where there are several
};

[[noreturn]] void raise_out_of_bounds(std::int32_t index) {
    RuntimeRaise("OutOfBoundsException", "the array has no element " + std::to_string(index));
}

[[noreturn]] void raise_no_memory() { RuntimeRaise("OutOfMemoryException", "no memory for an array"); }

std::size_t size_for(std::int32_t upper_bound, std::int32_t dimensions) {
    if (upper_bound < -1) raise_out_of_bounds(upper_bound);
    std::size_t size = 1;
    for (std::int32_t i = 0; i < dimensions; ++i) {
        if (__builtin_mul_overflow(size, static_cast<std::size_t>(upper_bound) + 1, &size)) raise_no_memory();
    }
    return size;
}

template <class T>
struct Elements {
    using Result = typename ElementOf<T>::Result;
    using Argument = typename ElementOf<T>::Argument;

    static ArrayState<T>& state(Array* array) {
        if (array == nullptr) RaiseNilObjectException();
        return *native<ArrayState<T>>(array);
    }
    static std::vector<Stored<T>>& all(Array* array) { return state(array).elements; }

    // Where the elements lie has changed, or how many there are.
    static void note_change(Array* array) {
        auto& elements = all(array);
        array->elements = elements.data();
        array->size = static_cast<std::int32_t>(elements.size());
    }

    static Stored<T>& element(Array* array, std::int32_t index) {
        auto& elements = all(array);
        if (index < 0 || static_cast<std::size_t>(index) >= elements.size()) raise_out_of_bounds(index);
        return elements[static_cast<std::size_t>(index)];
    }

    // Growth may fail, and what it fails with is one of the class layer's exceptions.
    template <class Change>
    static void grow(Change change) {
        try {
            change();
            return;
        } catch (const std::bad_alloc&) {
        } catch (const std::length_error&) {
        }
        raise_no_memory();
    }

    static Result read(Array* array, std::int32_t index) { return element(array, index); }

    static void write(Array* array, Argument value, std::int32_t index) {
        // The old element goes last: its release may run code that changes this array.
        Stored<T> kept(value);
        std::swap(element(array, index), kept);
    }

    static void resize(Array* array, std::int32_t upper_bound) {
        auto& elements = all(array);
        const std::size_t size = size_for(upper_bound, state(array).dimensions);
        // The elements cut off go last, as in write().
        std::vector<Stored<T>> dropped;
        grow([&] {
            if (size < elements.size()) {
                dropped.assign(std::make_move_iterator(elements.begin() + static_cast<std::ptrdiff_t>(size)),
                               std::make_move_iterator(elements.end()));
            }
            elements.resize(size);
        });
        note_change(array);
        state(array).upper_bound = upper_bound;
    }

    static void insert(Array* array, std::int32_t index, Argument value) {
        auto& elements = all(array);
        if (index < 0 || static_cast<std::size_t>(index) > elements.size()) raise_out_of_bounds(index);
        grow([&] { elements.insert(elements.begin() + index, Stored<T>(value)); });
        note_change(array);
    }

    static void remove(Array* array, std::int32_t index) {
        auto& elements = all(array);
        [[maybe_unused]] const Stored<T> dropped = std::move(element(array, index));
        elements.erase(elements.begin() + index);
        note_change(array);
    }

    static bool is(const Stored<T>& element, Argument value) {
        if constexpr (std::is_same_v<T, Object>) {
            return element.object() == value;
        } else {
            return element == value;
        }
    }

    static std::int32_t index_of(Array* array, Argument value, std::int32_t start) {
        const auto& elements = all(array);
        const std::ptrdiff_t from = std::clamp<std::ptrdiff_t>(start, 0, std::ssize(elements));
        const auto found = std::find_if(elements.begin() + from, elements.end(),
                                        [&](const Stored<T>& element) { return is(element, value); });
        return found == elements.end() ? -1 : static_cast<std::int32_t>(found - elements.begin());
    }

    static std::int32_t upper_bound(Array* array, std::int32_t dimension) {
        const ArrayState<T>& array_state = state(array);
        if (dimension < 1 || dimension > array_state.dimensions) raise_out_of_bounds(dimension);
        if (array_state.dimensions > 1) return array_state.upper_bound;
        return static_cast<std::int32_t>(array_state.elements.size()) - 1;
    }
};

template <class F>
Function erased(F* function) {
    return reinterpret_cast<Function>(function);
}

ClassRecord* array_class() {
    static ClassRecord* const record = core::new_hidden_class(nullptr, "Array", sizeof(Array));
    return record;
}

template <class T>
const ArrayOperations& operations_of() {
    static const ArrayOperations operations{erased(Elements<T>::read),       erased(Elements<T>::write),
                                            erased(Elements<T>::resize),     erased(Elements<T>::insert),
                                            erased(Elements<T>::remove),     erased(Elements<T>::index_of),
                                            erased(Elements<T>::upper_bound)};
    return operations;
}

template <class T>
Ref<Array> make(std::int32_t dimensions, std::int32_t upper_bound) {
    Ref<Array> array = core::new_array(operations_of<T>());
    auto* const state = new ArrayState<T>;
    array->native = state;
    state->dimensions = dimensions;
    state->upper_bound = upper_bound;
    Elements<T>::grow([&] { state->elements.resize(size_for(upper_bound, dimensions)); });
    Elements<T>::note_change(array.get());
    return array;
}

}  // namespace

namespace core {

bool is_array(const Object* object) { return object != nullptr && object->record == array_class(); }
bool has_objects(const Array* array) { return array->operations == &operations_of<Object>(); }
bool has_int32s(const Array* array) { return array->operations == &operations_of<std::uint32_t>(); }

Ref<Array> new_array(const ArrayOperations& operations) {
    auto array = static_ref<Array>(RuntimeNewObject(array_class()));
    array->operations = &operations;
    return array;
}

}  // namespace core

Ref<Array> CreateArray(std::int32_t dimensions, std::int32_t width, std::int32_t upper_bound) {
    if (dimensions < 1) raise_out_of_bounds(dimensions);
    switch (width) {
        case kReferenceWidth:
            return make<Object>(dimensions, upper_bound);
        case kStringWidth:
            return make<String>(dimensions, upper_bound);
        case kSingleWidth:
            return make<float>(dimensions, upper_bound);
        case kDoubleWidth:
            return make<double>(dimensions, upper_bound);
        case 1:
            return make<std::uint8_t>(dimensions, upper_bound);
        case 2:
            return make<std::uint16_t>(dimensions, upper_bound);
        case 4:
            return make<std::uint32_t>(dimensions, upper_bound);
        case 8:
            return make<std::uint64_t>(dimensions, upper_bound);
        default:
            RuntimeRaise("UnsupportedFormatException", "an array has no elements of this width");
    }
}

}  // namespace tavrik
