#include "data/variants.h"

namespace tavrik {

const ClassDefinition& _VariantBoolean::definition() {
    static constexpr ClassDefinition kDefinition = define<_VariantBoolean>({});
    return kDefinition;
}

const ClassDefinition& _VariantString::definition() {
    static constexpr ClassDefinition kDefinition = define<_VariantString>({.destructor = StringObjectDestructor});
    return kDefinition;
}

}  // namespace tavrik
