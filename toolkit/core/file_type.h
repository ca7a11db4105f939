#pragma once

#include "toolkit/front/descriptions.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::core {

// What the registered types that a filter string names select, in the string's order. Where there are several, what
// any of them selects comes first.
std::vector<front::FileFilter> filters_for(std::string_view filter);

struct MacCodes {
    std::string type;
    std::string creator;
};
// Of a registered type; nothing for another name.
std::optional<MacCodes> mac_codes_of_type(std::string_view name);
// The name of the first registered type with the extension of a file's name, or else with its Macintosh type.
std::string type_of_file(std::string_view file_name, std::string_view mac_type);

}  // namespace tavrik::core
