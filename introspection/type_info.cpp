#include "introspection/type_info.h"

#include "data/dictionary.h"
#include "introspection/lists.h"
#include "introspection/method_info.h"
#include "introspection/property_info.h"
#include "introspection/type_codes.h"
#include "runtime/frame.h"
#include "runtime/tavrik_module.h"

namespace tavrik::Introspection {

void TypeInfo::take_full_name(const String& name) {
    mFullyQualifiedName = name;
    mNameValue = Tavrik::NthField(name, "."_s, Tavrik::CountFields(name, "."_s));
    GetFQNTypeInfoMap()->set_Value(StringToVariant(name), this);
}

namespace {

template <class T, Field<ArrayOf<T>> TypeInfo::*List>
Ref<ArrayOf<T>> copy_list(TypeInfo* self) {
    const Frame frame(self);
    return copy_of<T>(self->*List);
}

bool is_subclass_of(TypeInfo*, Arg<TypeInfo>) { return false; }

[[noreturn]] void raise_no_array() { RuntimeRaise("RuntimeException", {}); }

std::int32_t get_array_rank(TypeInfo* self) {
    const Frame frame(self);
    raise_no_array();
}

Ref<TypeInfo> get_element_type(TypeInfo* self) {
    const Frame frame(self);
    raise_no_array();
}

constexpr OperationRow kOperations[] = {
    operation<&TypeInfo::GetProperties, copy_list<PropertyInfo, &TypeInfo::mPropertyList>>("GetProperties"),
    operation<&TypeInfo::IsSubclassOf, is_subclass_of>("IsSubclassOf"),
    operation<&TypeInfo::GetArrayRank, get_array_rank>("GetArrayRank"),
    operation<&TypeInfo::GetElementType, get_element_type>("GetElementType"),
    operation<&TypeInfo::GetMethods, copy_list<MethodInfo, &TypeInfo::mMethodList>>("GetMethods"),
    operation<&TypeInfo::Constructor, no_effect>("Constructor").not_public(),
    operation<&TypeInfo::GetConstructors, copy_list<ConstructorInfo, &TypeInfo::mConstructorList>>("GetConstructors"),
};

constexpr FieldRow kFields[] = {
    field<&TypeInfo::mPropertyList>("mPropertyList"),
    field<&TypeInfo::mFullyQualifiedName>("mFullyQualifiedName"),
    field<&TypeInfo::mIsPrimitiveTypeValue>("mIsPrimitiveTypeValue"),
    field<&TypeInfo::mIsValueTypeValue>("mIsValueTypeValue"),
    field<&TypeInfo::mIsPointerTypeValue>("mIsPointerTypeValue"),
    field<&TypeInfo::mIsClassTypeValue>("mIsClassTypeValue"),
    field<&TypeInfo::mIsInterfaceTypeValue>("mIsInterfaceTypeValue"),
    field<&TypeInfo::mIsEnumTypeValue>("mIsEnumTypeValue"),
    field<&TypeInfo::mIsArrayValue>("mIsArrayValue"),
    field<&TypeInfo::mHasElementTypeValue>("mHasElementTypeValue"),
    field<&TypeInfo::mIsByRefTypeValue>("mIsByRefTypeValue"),
    field<&TypeInfo::mMethodList>("mMethodList"),
    field<&TypeInfo::mConstructorList>("mConstructorList"),
    field<&TypeInfo::mBasetype>("mBasetype"),
};

constexpr PropertyRow kProperties[] = {
    property<&TypeInfo::HasElementType>("HasElementType"),
    property<&TypeInfo::IsArray>("IsArray"),
    property<&TypeInfo::IsClass>("IsClass"),
    property<&TypeInfo::IsEnum>("IsEnum"),
    property<&TypeInfo::IsInterface>("IsInterface"),
    property<&TypeInfo::IsPointer>("IsPointer"),
    property<&TypeInfo::IsPrimitive>("IsPrimitive"),
    property<&TypeInfo::IsValueType>("IsValueType"),
    property<&TypeInfo::BaseType>("BaseType"),
    property<&TypeInfo::FullName>("FullName"),
};

}  // namespace

const ClassDefinition& TypeInfo::definition() {
    static constexpr ClassDefinition kDefinition = define<TypeInfo>({
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik::Introspection
