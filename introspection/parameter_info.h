#pragma once

#include "introspection/type_info.h"

namespace tavrik::Introspection {

// A parameter of a method, made from its code in the signature.
struct ParameterInfo : Class<ParameterInfo> {
    static const ClassDefinition& definition();

    void Constructor(const String& code) { dispatch<&ParameterInfo::Constructor>(this, code); }

    // nil for a code that names no type.
    Ref<TypeInfo> ParameterType();
    bool IsByRef() { return mByRefValue; }

    Field<TypeInfo> mParamTypeValue;
    bool mByRefValue;
    StringField mParamTypeCode;
};

struct ParameterInfoImp : Class<ParameterInfoImp, ParameterInfo> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik::Introspection
