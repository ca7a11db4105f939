#pragma once

#include "toolkit/front/descriptions.h"

#include <optional>
#include <string>
#include <string_view>

namespace tavrik::core {

// Reads the cursor of a .cur file: of several images the one that is nearest to 32 by 32, and of those the one with
// the most colours. Nothing, and a reason, for what is no such file, and where all images are PNG.
std::optional<front::CursorImage> read_cursor_file(std::string_view file, std::string& reason);

}  // namespace tavrik::core
