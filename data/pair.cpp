#include "data/pair.h"

#include "runtime/frame.h"

namespace tavrik {
namespace {

void construct(Pair* self, Arg<Variant> left, Arg<Variant> right) {
    const Frame frame(self, left, right);
    self->mLeft = left;
    self->mRight = right;
}

constexpr OperationRow kOperations[] = {
    operation<&Pair::Constructor, construct>("Constructor"),
};

constexpr FieldRow kFields[] = {
    field<&Pair::mLeft>("mLeft"),
    field<&Pair::mRight>("mRight"),
};

constexpr PropertyRow kProperties[] = {
    property<&Pair::Left>("Left"),
    property<&Pair::Right>("Right"),
};

}  // namespace

const ClassDefinition& Pair::definition() {
    static constexpr ClassDefinition kDefinition = define<Pair>({
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
