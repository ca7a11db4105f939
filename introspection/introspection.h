#pragma once

#include "introspection/class_info.h"

namespace tavrik::Introspection {

// The type of an object: nil for nil, and for an object of a hidden class.
inline Ref<TypeInfo> GetType(Arg<Object> object) {
    if (!object) return nullptr;
    return ClassInfo::Lookup(RuntimeClassOf(object.object()));
}

}  // namespace tavrik::Introspection
