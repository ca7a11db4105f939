#include "toolkit/core/variant.h"

#include "toolkit/core/hash.h"
#include "toolkit/core/reflection.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <string>

namespace tavrik {
namespace {

ClassRecord* boolean_class() {
    static ClassRecord* const record = core::need_class("_VariantBoolean");
    return record;
}

ClassRecord* string_class() {
    static ClassRecord* const record = core::need_class("_VariantString");
    return record;
}

const ValueObject& boxed(const Object* variant) { return *static_cast<const ValueObject*>(variant); }

[[noreturn]] void raise_mismatch(const Object* variant, std::string_view wanted) {
    std::string message(view(variant->record->name));
    message.append(" can't be converted to ").append(wanted);
    RuntimeRaise("TypeMismatchException", message);
}

}  // namespace

namespace core {

ValueKind kind_of(const Object* variant) {
    if (variant == nullptr) return ValueKind::kNil;
    if (variant->record == string_class()) return ValueKind::kString;
    if (variant->record == boolean_class()) return ValueKind::kBoolean;
    return ValueKind::kObject;
}

bool equal_values(const Object* a, const Object* b) {
    if (a == b) return true;
    const ValueKind kind = kind_of(a);
    if (kind != kind_of(b)) return false;
    switch (kind) {
        case ValueKind::kBoolean:
            return boxed(a).boolean == boxed(b).boolean;
        case ValueKind::kString:
            return view(boxed(a).string) == view(boxed(b).string);
        case ValueKind::kNil:
        case ValueKind::kObject:
            break;
    }
    return false;
}

std::uint64_t hash_value(const Object* variant) {
    switch (kind_of(variant)) {
        case ValueKind::kBoolean:
            return hash_word(boxed(variant).boolean ? 1 : 0);
        case ValueKind::kString:
            return hash_bytes(view(boxed(variant).string));
        case ValueKind::kNil:
        case ValueKind::kObject:
            break;
    }
    return hash_word(reinterpret_cast<std::uintptr_t>(variant));
}

}  // namespace core

Ref<Variant> BooleanToVariant(bool value) {
    auto variant = static_ref<ValueObject>(RuntimeNewObject(boolean_class()));
    variant->boolean = value;
    return variant;
}

Ref<Variant> StringToVariant(const String& value) {
    auto variant = static_ref<ValueObject>(RuntimeNewObject(string_class()));
    variant->string = String(value).release();
    return variant;
}

bool VariantToBoolean(Object* variant) {
    if (variant == nullptr) return false;
    if (core::kind_of(variant) != core::ValueKind::kBoolean) raise_mismatch(variant, "Boolean");
    return boxed(variant).boolean;
}

String VariantToString(Object* variant) {
    if (variant == nullptr) return {};
    if (core::kind_of(variant) != core::ValueKind::kString) raise_mismatch(variant, "String");
    return String(boxed(variant).string);
}

void StringObjectDestructor(Object* object) {
    unlock(std::exchange(static_cast<ValueObject*>(object)->string, nullptr));
}

}  // namespace tavrik
