#include "introspection/method_info.h"

#include "introspection/type_codes.h"
#include "runtime/frame.h"

#include <tavrik/invocation.h>

namespace tavrik::Introspection {

Ref<TypeInfo> MethodInfo::ReturnType() {
    const Frame frame(this);
    if (mReturnTypeCode.empty()) return nullptr;
    if (!mReturnTypeValue) mReturnTypeValue = GetInfoFromTypeCode(mReturnTypeCode);
    return mReturnTypeValue;
}

namespace {

void invoke_without_result(MethodInfo* self, Arg<Object> target, Arg<ArrayOf<Variant>> arguments) {
    self->Invoke(target, arguments);
}

Ref<Object> invoke(MethodInfo* self, Object* target, Arg<ArrayOf<Variant>> arguments) {
    require_owner(target, self->mOwnerClassRef);
    return RuntimeGenericInvoker(self->mInvoker, self->mVector, target, arguments.get());
}

constexpr OperationRow kOperations[] = {
    operation<&MethodInfo::Invoke_, invoke_without_result>("Invoke"),
    operation<&MethodInfo::Invoke, invoke>("Invoke"),
};
constexpr OperationRow kImpOperations[] = {
    overrides<MethodInfoImp, &MemberInfo::Constructor, construct_method>("Constructor"),
};

constexpr PropertyRow kProperties[] = {
    property<&MethodInfo::ReturnType>("ReturnType"),
};

}  // namespace

const ClassDefinition& MethodInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<MethodInfo>({
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

const ClassDefinition& MethodInfoImp::definition() {
    static constexpr ClassDefinition kDefinition = define<MethodInfoImp>({.operations = kImpOperations});
    return kDefinition;
}

}  // namespace tavrik::Introspection
