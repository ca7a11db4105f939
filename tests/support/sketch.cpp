#include "tests/support/sketch.h"

namespace tavrik::test {
namespace {

StringRecord* text(const char* bytes) { return String(std::string_view(bytes)).release(); }

void fill(AttributeEntry* entries, const std::vector<const char*>& names) {
    for (const char* name : names) (entries++)->name = text(name);
}

template <class Record>
void fill(Record& record, Record* table, const SketchedMember& member) {
    record.name = text(member.name);
    const auto offset = reinterpret_cast<std::byte*>(&record) - reinterpret_cast<std::byte*>(table);
    fill(RuntimeAllocateAttributeTable(table, static_cast<std::int32_t>(offset),
                                       static_cast<std::int32_t>(member.attributes.size())),
         member.attributes);
}

}  // namespace

ClassRecord* make_class(const char* name, const Sketch& sketch) {
    const auto size = [](const auto& members) { return static_cast<std::int32_t>(members.size()); };
    const ClassRecord none{};
    const ClassRecord& inherited = sketch.parent == nullptr ? none : *sketch.parent;
    ClassRecord* const made = RuntimeNewClass(sketch.parent, inherited.method_count + size(sketch.methods), 0, 0, 0,
                                              inherited.property_count + size(sketch.properties), 0);
    made->name = text(name);
    made->is_interface = sketch.is_interface ? 1 : 0;
    made->instance_size = sketch.instance_size;
    made->attribute_count = size(sketch.attributes);
    made->attributes = new AttributeEntry[sketch.attributes.size()]();
    fill(made->attributes, sketch.attributes);

    MethodRecord* method = made->methods + inherited.method_count;
    for (const SketchedMember& member : sketch.methods) {
        fill(*method, made->methods, member);
        method->signature = text(member.type);
        method->function = member.function;
        (method++)->invoker = member.invoker;
    }
    PropertyRecord* property = made->properties + inherited.property_count;
    for (const SketchedMember& member : sketch.properties) {
        fill(*property, made->properties, member);
        property->type_code = text(member.type);
        property->parameter = member.parameter;
        property->getter = member.function;
        property->read_invoker = member.invoker;
        property->setter = member.setter;
        (property++)->write_invoker = member.write_invoker;
    }
    return made;
}

}  // namespace tavrik::test
