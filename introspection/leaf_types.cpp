#include "introspection/leaf_types.h"

#include "runtime/frame.h"

namespace tavrik::Introspection {
namespace {

void construct_value(ValueTypeInfo* self) {
    const Frame frame(self);
    self->mark();
}

void construct_primitive(PrimitiveTypeInfo* self, const String& name) {
    const Frame frame(self, name);
    self->mark();
    self->mNameValue = name;
    self->mIsPrimitiveTypeValue = true;
}

void construct_pointer(PointerTypeInfo* self, const String& name) {
    const Frame frame(self, name);
    self->mark();
    self->mNameValue = name;
    self->mIsPointerTypeValue = true;
}

void construct_structure(StructureInfo* self, const String& name) {
    const Frame frame(self, name);
    self->mark();
    self->take_full_name(name);
}

void construct_enum(EnumInfo* self, const String& name) {
    const Frame frame(self, name);
    self->mark();
    self->take_full_name(name);
    self->mIsEnumTypeValue = true;
}

void construct_variant(VariantInfo* self) {
    const Frame frame(self);
    self->mNameValue = "Variant"_s;
}

void construct_string(StringInfo* self) {
    const Frame frame(self);
    self->mNameValue = "String"_s;
}

constexpr OperationRow kValueOperations[] = {
    overrides<ValueTypeInfo, &TypeInfo::Constructor, construct_value>("Constructor").not_public(),
};
constexpr OperationRow kPrimitiveOperations[] = {
    operation<&PrimitiveTypeInfo::Constructor, construct_primitive>("Constructor"),
};
constexpr OperationRow kPointerOperations[] = {
    operation<&PointerTypeInfo::Constructor, construct_pointer>("Constructor"),
};
constexpr OperationRow kStructureOperations[] = {
    operation<&StructureInfo::Constructor, construct_structure>("Constructor"),
};
constexpr OperationRow kEnumOperations[] = {
    operation<&EnumInfo::Constructor, construct_enum>("Constructor"),
};
constexpr OperationRow kVariantOperations[] = {
    overrides<VariantInfo, &TypeInfo::Constructor, construct_variant>("Constructor"),
};
constexpr OperationRow kStringOperations[] = {
    overrides<StringInfo, &TypeInfo::Constructor, construct_string>("Constructor"),
};

}  // namespace

const ClassDefinition& ValueTypeInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<ValueTypeInfo>({.operations = kValueOperations});
    return kDefinition;
}

const ClassDefinition& PrimitiveTypeInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<PrimitiveTypeInfo>({.operations = kPrimitiveOperations});
    return kDefinition;
}

const ClassDefinition& PointerTypeInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<PointerTypeInfo>({.operations = kPointerOperations});
    return kDefinition;
}

const ClassDefinition& StructureInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<StructureInfo>({.operations = kStructureOperations});
    return kDefinition;
}

const ClassDefinition& EnumInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<EnumInfo>({.operations = kEnumOperations});
    return kDefinition;
}

const ClassDefinition& VariantInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<VariantInfo>({.operations = kVariantOperations});
    return kDefinition;
}

const ClassDefinition& StringInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<StringInfo>({.operations = kStringOperations});
    return kDefinition;
}

}  // namespace tavrik::Introspection
