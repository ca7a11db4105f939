#include "introspection/property_info.h"

#include "introspection/type_codes.h"
#include "runtime/frame.h"

#include <tavrik/invocation.h>

namespace tavrik::Introspection {
namespace {

void construct(PropertyInfo* self, void* record, void* owner) {
    const Frame frame(self);
    const auto* const property = static_cast<const PropertyRecord*>(record);
    self->read(static_cast<ClassRecord*>(owner), property);
    // At once, unlike the types of methods: so every class that a property names is described too.
    self->mTypeValue = GetInfoFromTypeCode(String(property->type_code));
    self->mGetterValue = property->getter;
    self->mSetterValue = property->setter;
    self->mOffsetParamValue = property->parameter;
    self->mGetInvoker = property->read_invoker;
    self->mSetInvoker = property->write_invoker;
}

[[noreturn]] void raise_no_access() { RuntimeRaise("RuntimeException", {}); }

Ref<Object> value(PropertyInfo* self, Object* target) {
    require_owner(target, self->mOwnerClassRef);
    if (!self->CanRead()) raise_no_access();
    return RuntimeGenericGetter(self->mGetInvoker, self->mGetterValue, target, self->mOffsetParamValue);
}

void set_value(PropertyInfo* self, Object* target, Object* value) {
    require_owner(target, self->mOwnerClassRef);
    if (!self->CanWrite()) raise_no_access();
    RuntimeGenericSetter(self->mSetInvoker, self->mSetterValue, target, self->mOffsetParamValue, value);
}

constexpr OperationRow kOperations[] = {
    overrides<PropertyInfo, &MemberInfo::Constructor, construct>("Constructor").not_public(),
    operation<&PropertyInfo::Value, value>("Value"),
    operation<&PropertyInfo::set_Value, set_value>("=Value"),
};
constexpr OperationRow kImpOperations[] = {
    overrides<PropertyInfoImp, &MemberInfo::Constructor, construct>("Constructor"),
};

constexpr FieldRow kFields[] = {
    field<&PropertyInfo::mTypeValue>("mTypeValue"),     field<&PropertyInfo::mGetterValue>("mGetterValue"),
    field<&PropertyInfo::mSetterValue>("mSetterValue"), field<&PropertyInfo::mOffsetParamValue>("mOffsetParamValue"),
    field<&PropertyInfo::mGetInvoker>("mGetInvoker"),   field<&PropertyInfo::mSetInvoker>("mSetInvoker"),
};

constexpr PropertyRow kProperties[] = {
    property<&PropertyInfo::CanRead>("CanRead"),
    property<&PropertyInfo::CanWrite>("CanWrite"),
    property<&PropertyInfo::PropertyType>("PropertyType"),
};

}  // namespace

const ClassDefinition& PropertyInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<PropertyInfo>({
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
    });
    return kDefinition;
}

const ClassDefinition& PropertyInfoImp::definition() {
    static constexpr ClassDefinition kDefinition = define<PropertyInfoImp>({.operations = kImpOperations});
    return kDefinition;
}

}  // namespace tavrik::Introspection
