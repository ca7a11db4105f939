#pragma once

#include "runtime/class.h"

#include <tavrik/variant.h>

namespace tavrik {

// What a variant's value is boxed in. The toolkit makes these objects, and finds the classes by their names.
struct _VariantBoolean : Class<_VariantBoolean, ValueObject> {
    static const ClassDefinition& definition();
};

struct _VariantString : Class<_VariantString, ValueObject> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik
