#pragma once

#include "toolkit/front/descriptions.h"

#include <string_view>
#include <vector>

namespace tavrik::core {

// What the registered types that a filter string names select, in the string's order. Where there are several, what
// any of them selects comes first.
std::vector<front::FileFilter> filters_for(std::string_view filter);

}  // namespace tavrik::core
