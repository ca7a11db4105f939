#pragma once

#include <tavrik/array.h>

namespace tavrik::core {

// The array that a view shows, or the array itself.
Array* array_behind(Array* array);

}  // namespace tavrik::core
