#pragma once

#include <string>
#include <string_view>

// Paths as a person types them: bytes, in no particular encoding.
namespace tavrik::front::terminal {

// The whole path: "~/" stands for the home folder, and what doesn't begin at the root begins at `folder`, or at the
// working directory if that is empty. Nothing else about it is changed.
std::string absolute_path(std::string_view typed, std::string_view folder);

// Why a path names no file that could be opened, in the system's words; "" if it does. Follows symbolic links, and
// doesn't open anything.
std::string refusal_of(const std::string& path);

}  // namespace tavrik::front::terminal
