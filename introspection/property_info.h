#pragma once

#include "introspection/member_info.h"

namespace tavrik::Introspection {

struct TypeInfo;

// A property, which can be read and written by way of variants.
struct PropertyInfo : Class<PropertyInfo, MemberInfo> {
    static const ClassDefinition& definition();

    // The property's record and the class that owns it: the other way round than in other members.
    void Constructor(void* property, void* owner) { MemberInfo::Constructor(property, owner); }
    // Raise IllegalCastException for a target of another class, and RuntimeException where the property can't be read
    // or written.
    Ref<Variant> Value(Arg<Object> target) { return dispatch<&PropertyInfo::Value>(this, target); }
    void set_Value(Arg<Object> target, Arg<Variant> value) { dispatch<&PropertyInfo::set_Value>(this, target, value); }

    bool CanRead() { return mGetterValue != nullptr; }
    bool CanWrite() { return mSetterValue != nullptr; }
    Ref<TypeInfo> PropertyType() { return mTypeValue; }

    Field<TypeInfo> mTypeValue;
    Function mGetterValue;
    Function mSetterValue;
    std::int32_t mOffsetParamValue;
    Function mGetInvoker;
    Function mSetInvoker;
};

struct PropertyInfoImp : Class<PropertyInfoImp, PropertyInfo> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik::Introspection
