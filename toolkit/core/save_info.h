#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavrik::core {

// Two ways to a file, the one to be tried first in front.
struct SaveInfo {
    enum class First : char { kRelative, kAbsolute };

    First first = First::kRelative;
    std::string relative;  // from the folder that it was saved for; empty without one
    std::string absolute;

    std::string text() const;
    // Nothing for a text that isn't one of these.
    static std::optional<SaveInfo> parse(std::string_view text);
};

}  // namespace tavrik::core
