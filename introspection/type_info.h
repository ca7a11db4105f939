#pragma once

#include "introspection/member_info.h"

namespace tavrik::Introspection {

struct ConstructorInfo;
struct MethodInfo;
struct PropertyInfo;

// A type of any kind. Its lists hold inherited members too, the parent's first.
struct TypeInfo : Class<TypeInfo, MemberInfo> {
    static const ClassDefinition& definition();

    // New arrays: what a caller does with them doesn't reach the type.
    Ref<ArrayOf<PropertyInfo>> GetProperties() { return dispatch<&TypeInfo::GetProperties>(this); }
    Ref<ArrayOf<MethodInfo>> GetMethods() { return dispatch<&TypeInfo::GetMethods>(this); }
    Ref<ArrayOf<ConstructorInfo>> GetConstructors() { return dispatch<&TypeInfo::GetConstructors>(this); }
    bool IsSubclassOf(Arg<TypeInfo> other) { return dispatch<&TypeInfo::IsSubclassOf>(this, other); }
    // Only an array type has a rank and an element type; on others these raise RuntimeException.
    std::int32_t GetArrayRank() { return dispatch<&TypeInfo::GetArrayRank>(this); }
    Ref<TypeInfo> GetElementType() { return dispatch<&TypeInfo::GetElementType>(this); }
    void Constructor() { dispatch<&TypeInfo::Constructor>(this); }

    bool HasElementType() { return mHasElementTypeValue; }
    bool IsArray() { return mIsArrayValue; }
    bool IsClass() { return mIsClassTypeValue; }
    bool IsEnum() { return mIsEnumTypeValue; }
    bool IsInterface() { return mIsInterfaceTypeValue; }
    bool IsPointer() { return mIsPointerTypeValue; }
    bool IsPrimitive() { return mIsPrimitiveTypeValue; }
    bool IsValueType() { return mIsValueTypeValue; }
    Ref<TypeInfo> BaseType() { return mBasetype; }
    String FullName() { return mFullyQualifiedName.empty() ? mNameValue : mFullyQualifiedName; }

    // Takes a dotted name and its last field as the short one, and enters the type under it in the map of full names.
    void take_full_name(const String& name);

    Field<ArrayOf<PropertyInfo>> mPropertyList;
    StringField mFullyQualifiedName;
    bool mIsPrimitiveTypeValue;
    bool mIsValueTypeValue;
    bool mIsPointerTypeValue;
    bool mIsClassTypeValue;
    bool mIsInterfaceTypeValue;
    bool mIsEnumTypeValue;
    bool mIsArrayValue;
    bool mHasElementTypeValue;
    bool mIsByRefTypeValue;
    Field<ArrayOf<MethodInfo>> mMethodList;
    Field<ArrayOf<ConstructorInfo>> mConstructorList;
    Field<TypeInfo> mBasetype;
};

}  // namespace tavrik::Introspection
