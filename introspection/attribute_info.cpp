#include "introspection/attribute_info.h"

#include "runtime/frame.h"

#include <tavrik/variant.h>

namespace tavrik::Introspection {

void read_attributes(Arg<ArrayOf<AttributeInfo>> list, AttributeEntry* entries, std::int32_t count) {
    list->resize(count - 1);
    for (std::int32_t i = 0; i < count; ++i) {
        const Ref<AttributeInfo> attribute = make<AttributeInfo>();
        attribute->Constructor(entries + i);
        list->set(i, attribute);
        RuntimeBackgroundTask();
    }
}

bool has_hidden(Arg<ArrayOf<AttributeInfo>> attributes) {
    if (!attributes) return false;
    for (std::int32_t i = 0; i <= attributes->upper_bound(); ++i) {
        if (RuntimeStringCompare(attributes->at(i)->Name, "Hidden"_s) == 0) return true;
        RuntimeBackgroundTask();
    }
    return false;
}

namespace {

void construct(AttributeInfo* self, AttributeEntry* entry) {
    const Frame frame(self);
    self->Name = String(entry->name);
    // An empty value is nil in the record, and told by its flag.
    if (entry->value_flag == 0 && entry->value == nullptr) return;
    self->Value = StringToVariant(String(entry->value));
}

constexpr OperationRow kOperations[] = {
    operation<&AttributeInfo::Constructor, construct>("Constructor"),
};

constexpr FieldRow kFields[] = {
    field<&AttributeInfo::Name>("Name"),
    field<&AttributeInfo::Value>("Value"),
};

}  // namespace

const ClassDefinition& AttributeInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<AttributeInfo>({
        .operations = kOperations,
        .fields = kFields,
    });
    return kDefinition;
}

}  // namespace tavrik::Introspection
