#include "introspection/constructor_info.h"

#include "runtime/frame.h"

#include <tavrik/invocation.h>

namespace tavrik::Introspection {
namespace {

Ref<Object> invoke(ConstructorInfo* self, Arg<ArrayOf<Variant>> arguments) {
    const Frame frame(self, arguments);
    Ref<Object> made = RuntimeNewObject(self->mOwnerClassRef);
    if (self->mVector != nullptr) {
        RuntimeGenericInvoker(self->mInvoker, self->mVector, made.object(), arguments.get());
    }
    return made;
}

constexpr OperationRow kOperations[] = {
    operation<&ConstructorInfo::Invoke, invoke>("Invoke"),
};
constexpr OperationRow kImpOperations[] = {
    overrides<ConstructorInfoImp, &MemberInfo::Constructor, construct_method>("Constructor"),
};

}  // namespace

const ClassDefinition& ConstructorInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<ConstructorInfo>({.operations = kOperations});
    return kDefinition;
}

const ClassDefinition& ConstructorInfoImp::definition() {
    static constexpr ClassDefinition kDefinition = define<ConstructorInfoImp>({.operations = kImpOperations});
    return kDefinition;
}

}  // namespace tavrik::Introspection
