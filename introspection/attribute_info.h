#pragma once

#include "runtime/class.h"

namespace tavrik::Introspection {

// One attribute of a class or a member. The value is nil, or the string that stands in the record.
struct AttributeInfo : Class<AttributeInfo> {
    static const ClassDefinition& definition();

    void Constructor(AttributeEntry* entry) { dispatch<&AttributeInfo::Constructor>(this, entry); }

    StringField Name;
    Field<Variant> Value;
};

// Makes `list` the attributes of a record's table.
void read_attributes(Arg<ArrayOf<AttributeInfo>> list, AttributeEntry* entries, std::int32_t count);

// Whether one of the attributes is named "Hidden", whatever its value. A nil array counts as empty.
bool has_hidden(Arg<ArrayOf<AttributeInfo>> attributes);

}  // namespace tavrik::Introspection
