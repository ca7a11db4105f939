#pragma once

#include "introspection/method_base.h"

namespace tavrik::Introspection {

// A method, which can be called with an array of variants. The owner of an inherited one is the class that was asked.
struct MethodInfo : Class<MethodInfo, MethodBase> {
    static const ClassDefinition& definition();

    // Calls the function of the record, not what stands in the target's slot. Raises IllegalCastException for a target
    // of another class. The second form drops the result.
    Ref<Variant> Invoke(Arg<Object> target, Arg<ArrayOf<Variant>> arguments) {
        return dispatch<&MethodInfo::Invoke>(this, target, arguments);
    }
    void Invoke_(Arg<Object> target, Arg<ArrayOf<Variant>> arguments) {
        dispatch<&MethodInfo::Invoke_>(this, target, arguments);
    }

    // nil for a method without a result.
    Ref<TypeInfo> ReturnType();
};

struct MethodInfoImp : Class<MethodInfoImp, MethodInfo> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik::Introspection
