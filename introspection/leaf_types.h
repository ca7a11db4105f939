#pragma once

#include "introspection/type_info.h"

// The types that are nothing but a name and a few flags.
namespace tavrik::Introspection {

struct ValueTypeInfo : Class<ValueTypeInfo, TypeInfo> {
    static const ClassDefinition& definition();

    // What the constructor does, for those of subclasses.
    void mark() { mIsValueTypeValue = true; }
};

struct PrimitiveTypeInfo : Class<PrimitiveTypeInfo, ValueTypeInfo> {
    static const ClassDefinition& definition();

    void Constructor(const String& name) { dispatch<&PrimitiveTypeInfo::Constructor>(this, name); }
};

struct PointerTypeInfo : Class<PointerTypeInfo, ValueTypeInfo> {
    static const ClassDefinition& definition();

    void Constructor(const String& name) { dispatch<&PointerTypeInfo::Constructor>(this, name); }
};

// Structures and enumerations have no record: a type code that names one is all that is known of it.
struct StructureInfo : Class<StructureInfo, ValueTypeInfo> {
    static const ClassDefinition& definition();

    void Constructor(const String& name) { dispatch<&StructureInfo::Constructor>(this, name); }
};

struct EnumInfo : Class<EnumInfo, ValueTypeInfo> {
    static const ClassDefinition& definition();

    void Constructor(const String& name) { dispatch<&EnumInfo::Constructor>(this, name); }
};

struct VariantInfo : Class<VariantInfo, TypeInfo> {
    static const ClassDefinition& definition();
};

struct StringInfo : Class<StringInfo, TypeInfo> {
    static const ClassDefinition& definition();
};

}  // namespace tavrik::Introspection
