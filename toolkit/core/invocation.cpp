#include "toolkit/core/array.h"
#include "toolkit/core/array_view.h"
#include "toolkit/core/variant.h"

#include <tavrik/exception.h>
#include <tavrik/invocation.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace tavrik {
namespace {

std::string name_of(const Object* object) {
    return object == nullptr ? "nil" : std::string(view(object->record->name));
}

[[noreturn]] void raise_mismatch(const Object* variant, std::string_view wanted) {
    RuntimeRaise("TypeMismatchException", name_of(variant) + " is no " + std::string(wanted));
}

void check_elements(Array* array, const ClassRecord* element_class) {
    const auto* const elements = static_cast<const Ref<Object>*>(array->elements);
    const auto is_fit = [&](const Ref<Object>& element) {
        return !element || RuntimeObjectIsa(element.object(), element_class);
    };
    const auto* const wrong = std::find_if_not(elements, elements + array->size, is_fit);
    if (wrong == elements + array->size) return;
    RuntimeRaise("IllegalCastException",
                 "an array of " + std::string(view(element_class->name)) + " has no " + name_of(wrong->object()));
}

}  // namespace

void RuntimeRaiseNoFunction() { RuntimeRaise("FunctionNotFoundException", "the record names no function"); }

Ref<Array> VariantArrayAssignmentWithTypeCheck(std::uintptr_t element, Object* variant) {
    if (variant == nullptr) return nullptr;
    if (!core::is_array(variant)) raise_mismatch(variant, "array");
    Array* const array = core::array_behind(static_cast<Array*>(variant));
    if (element == kInt32Elements) {
        if (!core::has_int32s(array)) raise_mismatch(variant, "array of Int32");
        return {array};
    }
    if (!core::has_objects(array)) raise_mismatch(variant, "array of objects");
    if (element != kVariantElements) check_elements(array, reinterpret_cast<const ClassRecord*>(element));
    return {array};
}

void VariantStructureTypeCheck(Object* variant, const String& name) {
    if (core::kind_of(variant) != ValueKind::kStructure) raise_mismatch(variant, name.view());
    const String boxed = core::structure_name(variant);
    if (boxed != name)
        RuntimeRaise("TypeMismatchException", std::string(boxed.view()) + " is no " + std::string(name.view()));
}

void RuntimeSetStructureString(void* structure, std::int32_t offset, std::int32_t size, const String& bytes) {
    if (structure == nullptr) RaiseNilObjectException();
    auto* const place = static_cast<char*>(structure) + offset;
    const auto room = static_cast<std::size_t>(std::max(size, 0));
    const std::size_t count = std::min(bytes.view().size(), room);
    std::copy_n(bytes.view().begin(), count, place);
    std::memset(place + count, 0, room - count);
}

}  // namespace tavrik
