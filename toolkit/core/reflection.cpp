#include "toolkit/core/reflection.h"

#include "toolkit/core/text.h"

#include <tavrik/exception.h>
#include <tavrik/fields.h>

#include <algorithm>
#include <span>
#include <string>
#include <unordered_map>

namespace tavrik {

ClassRecord* RuntimeFindClass(std::string_view name) {
    // The list only grows at its head, so what has been seen stays seen.
    static std::unordered_map<std::string_view, ClassRecord*> found;
    static ClassRecord* seen = nullptr;
    ClassRecord* const head = RuntimeGetClassList();
    ClassRecord* unnamed = nullptr;
    for (ClassRecord* record = head; record != seen; record = record->next) {
        if (record->name == nullptr) unnamed = record;  // still being built: look again next time
    }
    for (ClassRecord* record = head; record != seen; record = record->next) {
        if (record->name != nullptr) found.try_emplace(view(record->name), record);
    }
    if (unnamed == nullptr) seen = head;
    const auto place = found.find(name);
    return place == found.end() ? nullptr : place->second;
}

namespace core {
namespace {

[[noreturn]] void raise_missing(std::string_view class_name, std::string_view what, std::string_view name) {
    std::string message(class_name);
    message.append(" has no ").append(what).append(" ").append(name);
    RuntimeRaise("FunctionNotFoundException", message);
}

template <class Matches>
const PropertyRecord* last_property(const ClassRecord* record, Matches matches) {
    if (record == nullptr) return nullptr;
    // A property that a class states again stands behind the one that it inherits.
    for (std::int32_t i = record->property_count; i-- > 0;) {
        if (matches(view(record->properties[i].name))) return &record->properties[i];
    }
    return nullptr;
}

// The class whose own record stands at this index: the outermost that has one there.
const ClassRecord* owner_of_method(const ClassRecord* record, std::int32_t index) {
    while (record->parent != nullptr && index < record->parent->method_count) record = record->parent;
    return record;
}

}  // namespace

ClassRecord* need_class(std::string_view name) {
    ClassRecord* const record = RuntimeFindClass(name);
    if (record == nullptr) raise_missing("the program", "class", name);
    return record;
}

const PropertyRecord* find_property(const ClassRecord* record, std::string_view name) {
    return last_property(record, [name](std::string_view candidate) { return candidate == name; });
}

const PropertyRecord* find_property_any_case(const ClassRecord* record, std::string_view name) {
    return last_property(record, [name](std::string_view candidate) { return equal_any_case(candidate, name); });
}

void set_text_property(Object* object, std::string_view name, const String& value) {
    const PropertyRecord* const property = find_property(object->record, name);
    if (property == nullptr || property->setter == nullptr) return;
    reinterpret_cast<void (*)(Object*, std::int32_t, const String&)>(property->setter)(object, property->parameter,
                                                                                       value);
}

namespace {

// What the getter of a property gives; nothing, as zero bytes, if the object has none of that name.
template <class Value>
Value value_of_property(Object* object, std::string_view name) {
    const PropertyRecord* const property = find_property(object->record, name);
    if (property == nullptr || property->getter == nullptr) return {};
    return reinterpret_cast<Value (*)(Object*, std::int32_t)>(property->getter)(object, property->parameter);
}

}  // namespace

String text_property(Object* object, std::string_view name) { return value_of_property<String>(object, name); }
bool bool_property(Object* object, std::string_view name) { return value_of_property<bool>(object, name); }
std::int32_t int_property(Object* object, std::string_view name) {
    return value_of_property<std::int32_t>(object, name);
}

Function find_shared(std::string_view class_name, std::string_view method, std::string_view signature) {
    const ClassRecord* const record = need_class(class_name);
    for (std::int32_t i = 0; i < record->method_count; ++i) {
        const MethodRecord& found = record->methods[i];
        if ((found.flags & kShared) == 0) continue;
        if (view(found.name) == method && view(found.signature) == signature) return found.function;
    }
    raise_missing(class_name, "shared method", method);
}

void set_bool_property(Object* object, std::string_view name, bool value) {
    const PropertyRecord* const property = find_property(object->record, name);
    if (property == nullptr || property->setter == nullptr) return;
    reinterpret_cast<void (*)(Object*, std::int32_t, bool)>(property->setter)(object, property->parameter, value);
}

std::int32_t find_slot(std::string_view class_name, std::string_view operation, std::string_view signature) {
    const ClassRecord* const record = need_class(class_name);
    for (std::int32_t i = 0; i < record->method_count; ++i) {
        const MethodRecord& method = record->methods[i];
        if (view(method.name) != operation || view(method.signature) != signature) continue;
        const ClassRecord* const owner = owner_of_method(record, i);
        const std::span<Function> slots(owner->vtable, static_cast<std::size_t>(owner->vtable_size));
        const auto slot = std::ranges::find(slots, method.function);
        if (slot != slots.end()) return static_cast<std::int32_t>(slot - slots.begin());
    }
    raise_missing(class_name, "operation", operation);
}

std::int32_t find_event(std::string_view class_name, std::string_view event) {
    const ClassRecord* const record = need_class(class_name);
    for (std::int32_t i = 0; i < record->event_count; ++i) {
        if (view(record->events[i].name) == event) return i;
    }
    raise_missing(class_name, "event", event);
}

std::int32_t find_field(std::string_view class_name, std::string_view field) {
    const PropertyRecord* const property = find_property(need_class(class_name), field);
    if (property == nullptr) raise_missing(class_name, "field", field);
    return property->parameter;
}

const PropertyRecord& need_property(std::string_view class_name, std::string_view name) {
    const PropertyRecord* const property = find_property(need_class(class_name), name);
    if (property == nullptr) raise_missing(class_name, "property", name);
    return *property;
}

std::int32_t FieldPlace::offset() {
    if (offset_ < 0) offset_ = find_field(class_name_, name_);
    return offset_;
}

Ref<Object> ObjectField::get(const Object* object) { return objGetter(object, offset()); }

void ObjectField::set(Object* object, Object* value) { objSetter(object, offset(), value); }

Object* ObjectField::peek(const Object* object) {
    Object* value;
    std::memcpy(&value, reinterpret_cast<const std::byte*>(object) + offset(), sizeof value);
    return value;
}

}  // namespace core
}  // namespace tavrik
