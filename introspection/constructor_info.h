#pragma once

#include "introspection/method_base.h"

namespace tavrik::Introspection {

// A constructor. A class without one of its own has an implicit one, with an empty name and no function.
struct ConstructorInfo : Class<ConstructorInfo, MethodBase> {
    static const ClassDefinition& definition();

    // A new object of the owner's class, on which the constructor has run.
    Ref<Variant> Invoke(Arg<ArrayOf<Variant>> arguments) { return dispatch<&ConstructorInfo::Invoke>(this, arguments); }
};

struct ConstructorInfoImp : Class<ConstructorInfoImp, ConstructorInfo> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik::Introspection
