#include "introspection/type_codes.h"

#include "data/dictionary.h"
#include "data/pair.h"
#include "introspection/array_info.h"
#include "introspection/class_info.h"
#include "introspection/leaf_types.h"
#include "runtime/frame.h"
#include "runtime/tavrik_module.h"

#include <limits>

namespace tavrik::Introspection {
namespace {

constinit Field<Dictionary> intrinsic_types{};
constinit Field<Dictionary> named_types{};

template <class T>
Ref<TypeInfo> named(const String& name) {
    const Ref<T> type = make<T>();
    type->Constructor(name);
    return type;
}

template <class T>
Ref<TypeInfo> nameless(const String&) {
    const Ref<T> type = make<T>();
    type->Constructor();
    return type;
}

Ref<TypeInfo> root(const String&) { return ClassInfo::Lookup(static_cast<ClassRecord*>(nullptr)); }

struct IntrinsicType {
    std::string_view code;
    std::string_view name;
    Ref<TypeInfo> (*make)(const String& name);
};

constexpr IntrinsicType kIntrinsicTypes[] = {
    {"b", "Boolean", named<PrimitiveTypeInfo>},
    {"i1", "Int8", named<PrimitiveTypeInfo>},
    {"i2", "Int16", named<PrimitiveTypeInfo>},
    {"i4", "Int32", named<PrimitiveTypeInfo>},
    {"i8", "Int64", named<PrimitiveTypeInfo>},
    {"u1", "UInt8", named<PrimitiveTypeInfo>},
    {"u2", "UInt16", named<PrimitiveTypeInfo>},
    {"u4", "UInt32", named<PrimitiveTypeInfo>},
    {"u8", "UInt64", named<PrimitiveTypeInfo>},
    {"f4", "Single", named<PrimitiveTypeInfo>},
    {"f8", "Double", named<PrimitiveTypeInfo>},
    {"e", "Currency", named<PrimitiveTypeInfo>},
    {"c", "Color", named<PrimitiveTypeInfo>},
    {"s", "String", nameless<StringInfo>},
    {"v", "Variant", nameless<VariantInfo>},
    {"p", "Ptr", named<PointerTypeInfo>},
    {"?<CString>", "CString", named<PointerTypeInfo>},
    {"?<PString>", "PString", named<PointerTypeInfo>},
    {"?<WString>", "WString", named<PointerTypeInfo>},
    {"?<CFStringRef>", "CFStringRef", named<PointerTypeInfo>},
    {"?<WindowPtr>", "WindowPtr", named<PointerTypeInfo>},
    {"?<OSType>", "OSType", named<PrimitiveTypeInfo>},
    {"o<Object>", "Object", root},
};

Ref<TypeInfo> find(Arg<Dictionary> map, Arg<Variant> key) { return check_cast<TypeInfo>(map->Lookup(key, nullptr)); }

std::int32_t rank_of(std::string_view digits) {
    const double rank = Tavrik::Val(String(digits));
    constexpr auto kHighest = std::numeric_limits<std::int32_t>::max();
    return rank < kHighest ? static_cast<std::int32_t>(rank) : kHighest;
}

Ref<TypeInfo> array_type(std::string_view behind_letter) {
    const std::size_t digits = std::min(behind_letter.find_first_not_of("0123456789"), behind_letter.size());
    const Ref<TypeInfo> element = GetInfoFromTypeCode(String(behind_letter.substr(digits)));
    return ArrayInfo::Lookup(rank_of(behind_letter.substr(0, digits)), element);
}

// What stands behind the first "<", less the last character.
String name_in(const String& code) {
    const std::size_t bracket = code.view().find('<');
    const String name(bracket == std::string_view::npos ? code.view() : code.view().substr(bracket + 1));
    return Tavrik::Left(name, Tavrik::Len(name) - 1);
}

}  // namespace

Ref<Dictionary> new_dictionary() {
    Ref<Dictionary> map = make<Dictionary>();
    map->Constructor(ArrayOf<Pair>::make());
    return map;
}

Ref<Dictionary> MakeIntrinsicTypeCodeMap() {
    const Frame frame;
    Ref<Dictionary> map = new_dictionary();
    for (const IntrinsicType& type : kIntrinsicTypes) {
        map->set_Value(StringToVariant(String(type.code)), type.make(String(type.name)));
    }
    return map;
}

Ref<Dictionary> GetFQNTypeInfoMap() {
    if (!named_types) {
        named_types = new_dictionary();
        RuntimeAtExit(release_types);
    }
    return named_types;
}

Ref<TypeInfo> GetInfoFromTypeCode(const String& code) {
    const Frame frame(code);
    if (!intrinsic_types) {
        intrinsic_types = MakeIntrinsicTypeCodeMap();
        RuntimeAtExit(release_types);
    }
    if (Ref<TypeInfo> type = find(intrinsic_types, StringToVariant(code))) return type;

    const std::string_view text = code.view();
    if (text.starts_with('A')) return array_type(text.substr(1));
    const String name = name_in(code);
    // Also what ends the recursion when a class is named by a property of one of its properties' classes.
    if (Ref<TypeInfo> type = find(GetFQNTypeInfoMap(), StringToVariant(name))) return type;
    if (text.starts_with('o')) return ClassInfo::Lookup(name);
    if (text.starts_with('i') || text.starts_with('u')) return named<EnumInfo>(name);
    if (text.starts_with('t')) return named<StructureInfo>(name);
    return nullptr;
}

void release_types() {
    ArrayInfo::mArrayMap__Exit();
    ClassInfo::sClassRefMap__Exit();
    ClassInfo::sClassFQNToRefMap__Exit();
    intrinsic_types = nullptr;
    named_types = nullptr;
    cut_cycles();
}

}  // namespace tavrik::Introspection
