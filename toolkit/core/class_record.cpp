#include "toolkit/core/class_state.h"

#include <tavrik/class_record.h>
#include <tavrik/exception.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

namespace tavrik {
namespace {

ClassRecord* newest_class = nullptr;

std::vector<ClassRecord*>& classes_by_number() {
    static auto* const classes = new std::vector<ClassRecord*>;  // records live until the process ends
    return *classes;
}

template <class Record>
Record* new_table(std::int32_t total, const Record* inherited, std::int32_t inherited_count) {
    if (total == 0) return nullptr;
    auto* const table = static_cast<Record*>(std::calloc(static_cast<std::size_t>(total), sizeof(Record)));
    if (table == nullptr) throw std::bad_alloc();
    std::copy_n(inherited, std::min(total, inherited_count), table);
    return table;
}

void lock_strings(const ClassRecord& record) {
    for (std::int32_t i = 0; i < record.method_count; ++i) {
        lock(record.methods[i].name);
        lock(record.methods[i].signature);
    }
    for (std::int32_t i = 0; i < record.event_count; ++i) lock(record.events[i].name);
    for (std::int32_t i = 0; i < record.property_count; ++i) {
        lock(record.properties[i].name);
        lock(record.properties[i].type_code);
    }
}

ClassRecord* new_record(ClassRecord* parent, std::int32_t method_total, std::int32_t interface_count,
                        std::int32_t event_total, std::int32_t property_total) {
    static_assert(sizeof(core::ClassState) % alignof(ClassRecord) == 0);
    const std::size_t size = sizeof(core::ClassState) + sizeof(ClassRecord) +
                             static_cast<std::size_t>(interface_count) * sizeof(InterfaceEntry);
    void* const block = std::calloc(1, size);
    if (block == nullptr) throw std::bad_alloc();
    auto* const state = new (block) core::ClassState;
    auto* const record = new (state + 1) ClassRecord{};

    record->parent = parent;
    record->method_count = method_total;
    record->event_count = event_total;
    record->property_count = property_total;
    record->interface_count = interface_count;
    const ClassRecord none{};
    const ClassRecord& inherited = parent == nullptr ? none : *parent;
    record->methods = new_table(method_total, inherited.methods, inherited.method_count);
    record->events = new_table(event_total, inherited.events, inherited.event_count);
    record->properties = new_table(property_total, inherited.properties, inherited.property_count);
    lock_strings(*record);

    classes_by_number().push_back(record);
    state->number = static_cast<std::int32_t>(classes_by_number().size());
    return record;
}

}  // namespace

namespace core {

ClassRecord* new_hidden_class(ClassRecord* parent, const char* name, std::int32_t instance_size) {
    const std::int32_t methods = parent == nullptr ? 0 : parent->method_count;
    const std::int32_t events = parent == nullptr ? 0 : parent->event_count;
    const std::int32_t properties = parent == nullptr ? 0 : parent->property_count;
    ClassRecord* const record = new_record(parent, methods, 0, events, properties);
    record->name = String(std::string_view(name)).release();
    record->instance_size = instance_size;
    if (parent != nullptr) {
        record->vtable = parent->vtable;
        record->vtable_size = parent->vtable_size;
    }
    return record;
}

}  // namespace core

ClassRecord* RuntimeNewClass(ClassRecord* parent, std::int32_t method_total, std::int32_t interface_count,
                             std::int32_t event_total, std::int32_t, std::int32_t property_total, std::int32_t) {
    ClassRecord* const record = new_record(parent, method_total, interface_count, event_total, property_total);
    record->next = newest_class;
    newest_class = record;
    return record;
}

Function* RuntimeNewVtable(std::int32_t slots) { return new Function[static_cast<std::size_t>(slots)](); }

AttributeEntry* RuntimeAllocateAttributeTable(void* table, std::int32_t offset, std::int32_t count) {
    auto* const member = reinterpret_cast<MemberRecord*>(static_cast<std::byte*>(table) + offset);
    member->attribute_count = count;
    member->attributes = count == 0 ? nullptr : new AttributeEntry[static_cast<std::size_t>(count)]();
    return member->attributes;
}

ClassRecord* RuntimeGetClassList() { return newest_class; }

std::int32_t RuntimeClassNumber(const ClassRecord* record) {
    return record == nullptr ? 0 : core::state_of(record).number;
}

ClassRecord* RuntimeClassWithNumber(std::int32_t number) {
    const auto& classes = classes_by_number();
    if (number < 1 || static_cast<std::size_t>(number) > classes.size()) return nullptr;
    return classes[static_cast<std::size_t>(number) - 1];
}

ClassRecord* RuntimeClassOf(const Object* object) { return object == nullptr ? nullptr : object->record; }

bool RuntimeObjectIsa(const Object* object, const ClassRecord* record) {
    if (object == nullptr || record == nullptr) return false;
    for (const ClassRecord* c = object->record; c != nullptr; c = c->parent) {
        if (c == record) return true;
        if (record->is_interface == 0) continue;
        const InterfaceEntry* const entries = c->interfaces();
        for (std::int32_t i = 0; i < c->interface_count; ++i) {
            if (entries[i].interface == record) return true;
        }
    }
    return false;
}

Ref<Object> RuntimeCheckCast(Object* object, const ClassRecord* record) {
    if (object != nullptr && !RuntimeObjectIsa(object, record)) {
        std::string message(view(object->record->name));
        message += " is no ";
        message += record == nullptr ? std::string_view("object") : view(record->name);
        RuntimeRaise("IllegalCastException", message);
    }
    return {object};
}

const Function* RuntimeLookupInterfaceVtable(const Object* object, const ClassRecord* interface) {
    if (object == nullptr) RaiseNilObjectException();
    for (const ClassRecord* c = object->record; c != nullptr; c = c->parent) {
        const InterfaceEntry* const entries = c->interfaces();
        for (std::int32_t i = 0; i < c->interface_count; ++i) {
            if (entries[i].interface == interface) return entries[i].operations;
        }
    }
    std::string message(view(object->record->name));
    message += " does not implement ";
    message += interface == nullptr ? std::string_view("nil") : view(interface->name);
    RuntimeRaise("IllegalCastException", message);
}

std::int64_t RuntimeLiveObjects(const ClassRecord* record) { return core::state_of(record).live; }

std::int64_t RuntimeLiveObjects() {
    std::int64_t live = 0;
    for (const ClassRecord* record : classes_by_number()) live += core::state_of(record).live;
    return live;
}

void RuntimeDeclarationError(const char* class_name, const char* what, const char* member) {
    std::fprintf(stderr, "class %s: %s: %s\n", class_name, what, member);
    std::abort();
}

}  // namespace tavrik
