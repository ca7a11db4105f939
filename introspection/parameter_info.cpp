#include "introspection/parameter_info.h"

#include "introspection/type_codes.h"
#include "runtime/frame.h"

namespace tavrik::Introspection {

Ref<TypeInfo> ParameterInfo::ParameterType() {
    const Frame frame(this);
    if (!mParamTypeValue) mParamTypeValue = GetInfoFromTypeCode(mParamTypeCode);
    return mParamTypeValue;
}

namespace {

void construct(ParameterInfo* self, const String& code) {
    const Frame frame(self, code);
    self->mByRefValue = code.view().starts_with('&');
    self->mParamTypeCode = self->mByRefValue ? String(code.view().substr(1)) : code;
}

constexpr OperationRow kOperations[] = {
    operation<&ParameterInfo::Constructor, construct>("Constructor").not_public(),
};
constexpr OperationRow kImpOperations[] = {
    overrides<ParameterInfoImp, &ParameterInfo::Constructor, construct>("Constructor"),
};

constexpr FieldRow kFields[] = {
    field<&ParameterInfo::mParamTypeValue>("mParamTypeValue"),
    field<&ParameterInfo::mByRefValue>("mByRefValue"),
    field<&ParameterInfo::mParamTypeCode>("mParamTypeCode"),
};

constexpr PropertyRow kProperties[] = {
    property<&ParameterInfo::ParameterType>("ParameterType"),
    property<&ParameterInfo::IsByRef>("IsByRef"),
};

}  // namespace

const ClassDefinition& ParameterInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<ParameterInfo>({
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
    });
    return kDefinition;
}

const ClassDefinition& ParameterInfoImp::definition() {
    static constexpr ClassDefinition kDefinition = define<ParameterInfoImp>({.operations = kImpOperations});
    return kDefinition;
}

}  // namespace tavrik::Introspection
