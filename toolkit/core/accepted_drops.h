#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::core {

// The kinds of thing that may be dropped somewhere.
struct AcceptedDrops {
    bool text = false;
    bool pictures = false;
    std::vector<std::string> file_types;  // names of registered types
    std::vector<std::string> data_types;

    static void add(std::vector<std::string>& kinds, std::string_view kind) {
        if (std::ranges::find(kinds, kind) == kinds.end()) kinds.emplace_back(kind);
    }
};

}  // namespace tavrik::core
