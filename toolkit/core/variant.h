#pragma once

#include <tavrik/variant.h>

#include <cstdint>

namespace tavrik::core {

// What is boxed in a variant; kObject is everything that isn't boxed.
enum class ValueKind : std::uint8_t { kNil, kObject, kBoolean, kString };

ValueKind kind_of(const Object* variant);

// The equality of dictionary keys, and a hash that is the same for equal ones.
bool equal_values(const Object* a, const Object* b);
std::uint64_t hash_value(const Object* variant);

}  // namespace tavrik::core
