#include "runtime/invoke.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <string>

namespace tavrik::detail {
namespace {

ClassRecord* find(ClassRecord*& found, const StringRecord* class_name) {
    if (found == nullptr) found = RuntimeFindClass(view(class_name));
    return found;
}

[[noreturn]] void raise_no_instance(const Object* object, const StringRecord* class_name) {
    std::string message(view(object->record->name));
    message.append(" is no ").append(view(class_name));
    RuntimeRaise("IllegalCastException", message);
}

}  // namespace

Ref<Object> checked_object(Ref<Object> element, ClassRecord*& found, const StringRecord* class_name) {
    if (!element || element.object()->record == found) return element;
    // A class that isn't built has no instances.
    if (!RuntimeObjectIsa(element.object(), find(found, class_name))) raise_no_instance(element.object(), class_name);
    return element;
}

Ref<Array> checked_array(Object* element, ClassRecord*& found, const StringRecord* class_name) {
    if (element == nullptr) return nullptr;
    const ClassRecord* const record = find(found, class_name);
    if (record == nullptr) raise_no_instance(element, class_name);
    return VariantArrayAssignmentWithTypeCheck(reinterpret_cast<std::uintptr_t>(record), element);
}

Ref<Array> viewed_array(Array* array, ClassRecord*& found, const StringRecord* class_name) {
    const ClassRecord* const record = find(found, class_name);
    return record == nullptr ? Ref<Array>(array) : RuntimeCreateArrayCastWrapper(array, record);
}

Ref<Object> box(WString value) {
    Ref<Object> variant = WStringToVariant(value);
    UnlockWString(value);
    return variant;
}

Ref<Object> box(CFStringRef value) {
    Ref<Object> variant = CFStringRefToVariant(value);
    UnlockCFString(value);
    return variant;
}

}  // namespace tavrik::detail
