#pragma once

#include "introspection/member_info.h"

namespace tavrik::Introspection {

struct ParameterInfo;
struct TypeInfo;

// What a method and a constructor have in common: a signature taken apart, and the functions to call.
struct MethodBase : Class<MethodBase, MemberInfo> {
    static const ClassDefinition& definition();

    // A new array with the same parameters.
    Ref<ArrayOf<ParameterInfo>> GetParameters() { return dispatch<&MethodBase::GetParameters>(this); }
    // Makes the parameters of the codes in `text`. Letters without a meaning pass: such a parameter has no type.
    void ParseParameterList(const String& text) { dispatch<&MethodBase::ParseParameterList>(this, text); }

    // What the constructor does, for those of subclasses.
    void read(ClassRecord* owner, const MethodRecord* method);

    Function mVector;
    StringField mSignature;
    Field<TypeInfo> mReturnTypeValue;
    Function mInvoker;
    Field<ArrayOf<ParameterInfo>> mParamList;
    StringField mReturnTypeCode;
};

// The body of each subclass's constructor, which adds nothing.
void construct_method(MethodBase* self, void* owner, void* record);

}  // namespace tavrik::Introspection
