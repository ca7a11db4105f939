#pragma once

#include "introspection/type_info.h"

namespace tavrik {

struct Dictionary;

namespace Introspection {

// The type that a code names, or nil for a code without a meaning. A class that isn't there is "Object".
Ref<TypeInfo> GetInfoFromTypeCode(const String& code);

// A new map of the built-in types by their codes.
Ref<Dictionary> MakeIntrinsicTypeCodeMap();

// The named types that have been met, by their full names. What was entered last stands.
Ref<Dictionary> GetFQNTypeInfoMap();

// A new empty dictionary.
Ref<Dictionary> new_dictionary();

// Drops all maps of types and cuts the cycles among the types that are left, which have no members from then on. Runs
// at the end of the program; a later question fills the maps anew.
void release_types();

}  // namespace Introspection
}  // namespace tavrik
