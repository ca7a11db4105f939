#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tavrik::core {

// The person's home, also where the environment doesn't tell.
std::string home_folder();

// The path of a folder that the desktop sets aside, as XDG has it; the one for shared trash is that of the file system
// that `path` lies on. Nothing for a code that there isn't.
std::optional<std::string> special_folder(std::int32_t code, const std::string& path);

}  // namespace tavrik::core
