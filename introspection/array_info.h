#pragma once

#include "introspection/type_info.h"

namespace tavrik {

struct Dictionary;

namespace Introspection {

// An array type. There is one for each full name, which the map keeps.
struct ArrayInfo : Class<ArrayInfo, TypeInfo> {
    static const ClassDefinition& definition();

    void Constructor(std::int32_t rank, Arg<TypeInfo> element);

    // Raises NilObjectException for an element type of nil.
    static Ref<TypeInfo> Lookup(std::int32_t rank, Arg<TypeInfo> element);
    // "()" for rank 1 and below; a comma more for each rank above.
    static String RankSuffix(std::int32_t rank);

    // By full name; nil before the first array type is made.
    static inline constinit Field<Dictionary> mArrayMap{};
    static void mArrayMap__Exit();

    Field<TypeInfo> mElementType;
    std::int32_t mArrayRank;
};

}  // namespace Introspection
}  // namespace tavrik
