#include "toolkit/core/array_view.h"

#include "toolkit/core/array.h"

#include <tavrik/exception.h>
#include <tavrik/invocation.h>

#include <string>

namespace tavrik {
namespace {

using Table = ArrayTable<Object>;

struct ViewState : NativeState {
    Ref<Array> array;
    const ClassRecord* element_class = nullptr;
};

ViewState& state(Array* view) {
    if (view == nullptr) RaiseNilObjectException();
    return *native<ViewState>(view);
}

// Calls an operation of the array behind the view.
template <class Type, Function ArrayOperations::*Operation, class... A>
auto pass_on(Array* view, A... arguments) {
    Array* const array = state(view).array.get();
    return reinterpret_cast<Type>(array->operations->*Operation)(array, arguments...);
}

void check(Array* view, Object* value) {
    const ClassRecord* const wanted = state(view).element_class;
    if (value == nullptr || RuntimeObjectIsa(value, wanted)) return;
    std::string message("an array of ");
    message.append(tavrik::view(wanted->name)).append(" takes no ").append(tavrik::view(value->record->name));
    RuntimeRaise("IllegalCastException", message);
}

Ref<Object> read(Array* view, std::int32_t index) { return pass_on<Table::Read, &ArrayOperations::read>(view, index); }
void write(Array* view, Object* value, std::int32_t index) {
    check(view, value);
    pass_on<Table::Write, &ArrayOperations::write>(view, value, index);
}
void resize(Array* view, std::int32_t upper_bound) {
    pass_on<Table::Resize, &ArrayOperations::resize>(view, upper_bound);
}
void insert(Array* view, std::int32_t index, Object* value) {
    check(view, value);
    pass_on<Table::Insert, &ArrayOperations::insert>(view, index, value);
}
void remove(Array* view, std::int32_t index) { pass_on<Table::Remove, &ArrayOperations::remove>(view, index); }
std::int32_t index_of(Array* view, Object* value, std::int32_t start) {
    return pass_on<Table::IndexOf, &ArrayOperations::index_of>(view, value, start);
}
std::int32_t upper_bound(Array* view, std::int32_t dimension) {
    return pass_on<Table::UpperBound, &ArrayOperations::upper_bound>(view, dimension);
}

template <class F>
Function erased(F* function) {
    return reinterpret_cast<Function>(function);
}

const ArrayOperations& operations() {
    static const ArrayOperations all{erased(read),   erased(write),    erased(resize),     erased(insert),
                                     erased(remove), erased(index_of), erased(upper_bound)};
    return all;
}

}  // namespace

namespace core {

Array* array_behind(Array* array) { return array->operations == &operations() ? state(array).array.get() : array; }

}  // namespace core

Ref<Array> RuntimeCreateArrayCastWrapper(Array* array, const ClassRecord* element_class) {
    if (array == nullptr) return nullptr;
    Ref<Array> view = core::new_array(operations());
    auto* const state = new ViewState;
    view->native = state;
    state->array = Ref<Array>(core::array_behind(array));
    state->element_class = element_class;
    return view;
}

}  // namespace tavrik
