#pragma once

#include <tavrik/array.h>

// What arrays are made of, for those who make them or look inside.
namespace tavrik::core {

bool is_array(const Object* object);
// Whether the elements, which lie in the array itself, are objects, or integers of 32 bits.
bool has_objects(const Array* array);
bool has_int32s(const Array* array);

// A new array without elements of its own.
Ref<Array> new_array(const ArrayOperations& operations);

}  // namespace tavrik::core
