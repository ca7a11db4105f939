#include "runtime/class_definition.h"
#include "runtime/invoke.h"
#include "runtime/type_code.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <string_view>

namespace tavrik {
namespace {

constexpr std::string_view kGet = ".Get";
constexpr std::string_view kSet = ".Set";

// The name in the record of an assignment form or a variable argument list is that of the member alone.
std::string_view record_name(const OperationRow& row) {
    const std::string_view name = row.name;
    return name.starts_with('=') || name.starts_with('*') ? name.substr(1) : name;
}

std::int32_t count_accessors(const PropertyRow& row) {
    return std::int32_t{row.getter.function != nullptr} + std::int32_t{row.setter.function != nullptr};
}

std::int32_t count_own_methods(const Declaration& declared) {
    auto count = static_cast<std::int32_t>(declared.operations.size());
    count += std::int32_t{declared.init.given} + std::int32_t{declared.exit.given};
    for (const PropertyRow& row : declared.properties) count += count_accessors(row);
    return count;
}

bool is_accessor(const MethodRecord& method) {
    const std::string_view name = view(method.name);
    return method.flags == 0 && (name.ends_with(kGet) || name.ends_with(kSet));
}

// The records between the parent's last and an application class's first own one stay blank.
std::int32_t count_blank_methods(const Declaration& declared, const ClassRecord* parent) {
    if (declared.layer != Layer::kApplication || parent == nullptr) return 0;
    return static_cast<std::int32_t>(
        std::count_if(parent->methods, parent->methods + parent->method_count, is_accessor));
}

// The names of a class's records: static strings in one block that lives as long as the record.
class Names {
public:
    explicit Names(const Declaration& declared) {
        if (declared.init.given) add_room(kInit);
        if (declared.exit.given) add_room(kExit);
        for (const OperationRow& row : declared.operations) add_room(row.name);
        for (const FieldRow& row : declared.fields) add_room(row.name);
        for (const EventRow& row : declared.events) add_room(row.name);
        for (const PropertyRow& row : declared.properties) {
            add_room(row.name);
            add_room(row.name, kGet);
            add_room(row.name, kSet);
        }
        if (strings_ == 0) return;
        auto* const block = static_cast<char*>(::operator new(strings_ * sizeof(StringRecord) + bytes_));
        records_ = reinterpret_cast<StringRecord*>(block);
        texts_ = block + strings_ * sizeof(StringRecord);
    }

    StringRecord* make(std::string_view name, std::string_view suffix = {}) {
        char* const text = texts_;
        const std::size_t length = name.size() + suffix.size();
        *texts_++ = static_cast<char>(static_cast<unsigned char>(std::min<std::size_t>(length, 255)));
        texts_ = std::ranges::copy(name, texts_).out;
        texts_ = std::ranges::copy(suffix, texts_).out;
        *texts_++ = '\0';
        const auto size = static_cast<std::int32_t>(length);
        auto* const record = new (records_++) StringRecord{1, text, size + kStringOverhead, size, kEncodingUtf8};
        lock(record);
        return record;
    }

    static constexpr std::string_view kInit = "__Init";
    static constexpr std::string_view kExit = "__Exit";

private:
    void add_room(std::string_view name, std::string_view suffix = {}) {
        ++strings_;
        bytes_ += name.size() + suffix.size() + 2;
    }

    std::size_t strings_ = 0;
    std::size_t bytes_ = 0;
    StringRecord* records_ = nullptr;
    char* texts_ = nullptr;
};

class ClassBuilder {
public:
    ClassBuilder(const ClassDefinition& definition, ClassRecord* parent, ClassRecord* record)
        : definition_(definition),
          declared_(definition.declared),
          parent_(parent),
          record_(*record),
          names_(declared_) {}

    void build() {
        record_.name = definition_.name;
        lock(record_.name);
        record_.is_interface = definition_.is_interface ? 1 : 0;
        if (definition_.is_interface) return;
        record_.instance_size = definition_.instance_size;
        record_.init = definition_.init;
        record_.destructor = declared_.destructor;
        record_.exit = definition_.exit;
        fill_vtable();
        fill_methods();
        fill_events();
        fill_properties();
        fill_interfaces();
    }

private:
    void fill_vtable() {
        const std::int32_t inherited = parent_ == nullptr ? 0 : parent_->vtable_size;
        record_.vtable_size = inherited + static_cast<std::int32_t>(std::ranges::count(
                                              declared_.operations, Placing::kNewSlot, &OperationRow::placing));
        record_.vtable = RuntimeNewVtable(record_.vtable_size);
        if (parent_ != nullptr) std::copy_n(parent_->vtable, inherited, record_.vtable);

        std::int32_t next = inherited;
        for (const OperationRow& row : declared_.operations) {
            if (row.placing == Placing::kWithoutSlot) continue;
            if (row.placing == Placing::kNewSlot) *row.slot = next++;
            if (*row.slot < 0 || *row.slot >= record_.vtable_size)
                fail("overrides an operation that no parent has", row.name);
            if (row.placing == Placing::kSameSlot && *row.slot >= inherited)
                fail("overrides an operation of its own", row.name);
            record_.vtable[*row.slot] = row.function();
        }
    }

    void fill_methods() {
        next_method_ = record_.methods + record_.method_count - count_own_methods(declared_);
        first_own_method_ = next_method_;
        StringRecord* const plain = signature_of_nothing();
        if (declared_.exit.given) {
            add_method(names_.make(Names::kExit), plain, 0, reinterpret_cast<Function>(definition_.exit),
                       invoker_of<void>());
        }
        if (declared_.init.given) {
            add_method(names_.make(Names::kInit), plain, 0, reinterpret_cast<Function>(definition_.init),
                       invoker_of<void>());
        }
        for (const OperationRow& row : declared_.operations) {
            add_method(names_.make(record_name(row)), row.signature, row.flags, row.function(), row.invoker());
        }
        for (const PropertyRow& row : declared_.properties) {
            add_accessor(row, row.getter, kGet);
            add_accessor(row, row.setter, kSet);
        }
    }

    void add_accessor(const PropertyRow& row, const AccessorRow& accessor, std::string_view suffix) {
        if (accessor.function == nullptr) return;
        add_method(names_.make(row.name, suffix), accessor.signature, 0, accessor.function(), accessor.invoker());
    }

    void add_method(StringRecord* name, StringRecord* signature, std::int32_t flags, Function function,
                    Function invoker) {
        const auto is_same = [&](const MethodRecord& other) {
            return other.flags == flags && view(other.name) == view(name) && view(other.signature) == view(signature);
        };
        if (std::any_of(first_own_method_, next_method_, is_same))
            fail("declares an operation twice", view(name).data());

        MethodRecord& method = *next_method_++;
        method.function = function;
        method.name = name;
        method.signature = signature;
        lock(signature);
        method.invoker = invoker;
        method.flags = flags;
        add_attributes(record_.methods, method);
    }

    void fill_events() {
        std::int32_t next = parent_ == nullptr ? 0 : parent_->event_count;
        for (const EventRow& row : declared_.events) {
            record_.events[next].name = names_.make(row.name);
            *row.index = next++;
        }
        for (const HandlerRow& row : declared_.handlers) {
            const bool known = *row.index >= 0 && *row.index < record_.event_count;
            if (!known || view(record_.events[*row.index].name) != row.event)
                fail("handles an event that it hasn't", row.event);
            if (*row.slot < 0 || *row.slot >= record_.vtable_size)
                fail("handles an event with an operation that it hasn't", row.event);
            record_.events[*row.index].handler = record_.vtable[*row.slot];
        }
    }

    void fill_properties() {
        next_property_ = record_.properties + (parent_ == nullptr ? 0 : parent_->property_count);
        first_own_property_ = next_property_;
        for (const FieldRow& row : declared_.fields) fill_field(row);
        for (const PropertyRow& row : declared_.properties) {
            if (row.field != nullptr) {
                fill_field(*row.field);
                continue;
            }
            const std::int32_t writable = row.setter.function == nullptr ? 0 : kWritable;
            PropertyRecord& property = add_property(row.name, row.type_code, kPublic | writable);
            if (row.offset != nullptr) property.parameter = row.offset();
            if (row.getter.function != nullptr) {
                property.getter = row.getter.function();
                property.read_invoker = row.getter.property_invoker();
            }
            if (row.setter.function != nullptr) {
                property.setter = row.setter.function();
                property.write_invoker = row.setter.property_invoker();
            }
        }
    }

    void fill_field(const FieldRow& row) {
        PropertyRecord& property = add_property(row.name, row.type_code, row.flags);
        if ((row.flags & kShared) != 0) return;
        property.parameter = row.offset();
        property.getter = row.getter();
        property.setter = row.setter();
        property.read_invoker = row.read_invoker();
        property.write_invoker = row.write_invoker();
    }

    PropertyRecord& add_property(const char* name, StringRecord* type_code, std::int32_t flags) {
        const auto is_same = [name](const PropertyRecord& other) { return view(other.name) == name; };
        if (std::any_of(first_own_property_, next_property_, is_same)) fail("declares a property twice", name);
        PropertyRecord& property = *next_property_++;
        property.name = names_.make(name);
        property.type_code = type_code;
        lock(type_code);
        property.flags = flags;
        add_attributes(record_.properties, property);
        return property;
    }

    static void add_attributes(void* table, MemberRecord& member) {
        const std::ptrdiff_t offset = reinterpret_cast<std::byte*>(&member) - static_cast<std::byte*>(table);
        const std::int32_t count = (member.flags & kShared) != 0 ? 1 : 0;
        AttributeEntry* const entry = RuntimeAllocateAttributeTable(table, static_cast<std::int32_t>(offset), count);
        if (entry == nullptr) return;
        entry->name = "__Shared"_s.record();
        lock(entry->name);
    }

    void fill_interfaces() {
        InterfaceEntry* entry = record_.interfaces();
        for (const InterfaceRow& row : declared_.interfaces) {
            entry->interface = row.lookup();
            entry->operation_count = row.operation_count;
            entry->operations = RuntimeNewVtable(row.operation_count);
            for (std::int32_t i = 0; i < row.operation_count; ++i) {
                const std::int32_t slot = *row.slots[i];
                if (slot < 0 || slot >= record_.vtable_size) {
                    fail("implements an interface with an operation that it hasn't",
                         view(entry->interface->name).data());
                }
                entry->operations[i] = record_.vtable[slot];
            }
            ++entry;
        }
    }

    static StringRecord* signature_of_nothing() { return signature_record<void>; }

    [[noreturn]] void fail(const char* what, const char* member) const {
        RuntimeDeclarationError(view(definition_.name).data(), what, member);
    }

    const ClassDefinition& definition_;
    const Declaration& declared_;
    const ClassRecord* parent_;
    ClassRecord& record_;
    Names names_;
    MethodRecord* next_method_ = nullptr;
    MethodRecord* first_own_method_ = nullptr;
    PropertyRecord* next_property_ = nullptr;
    PropertyRecord* first_own_property_ = nullptr;
};

}  // namespace

void build_class(const ClassDefinition& definition, ClassRecord*& place) {
    if (place != nullptr) return;
    const Declaration& declared = definition.declared;
    ClassRecord* const parent = definition.parent == nullptr ? nullptr : definition.parent();
    const ClassRecord none{};
    const ClassRecord& inherited = parent == nullptr ? none : *parent;
    const auto size = [](const auto& rows) { return static_cast<std::int32_t>(rows.size()); };
    const std::int32_t methods =
        inherited.method_count + count_blank_methods(declared, parent) + count_own_methods(declared);
    place = RuntimeNewClass(parent, methods, size(declared.interfaces), inherited.event_count + size(declared.events),
                            0, inherited.property_count + size(declared.fields) + size(declared.properties), 0);
    ClassBuilder(definition, parent, place).build();
}

}  // namespace tavrik
