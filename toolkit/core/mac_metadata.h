#pragma once

#include "toolkit/core/file_place.h"

#include <cstdint>
#include <string>

// What Macintosh files have beside their bytes. It lies in an attribute of the file or, on file systems without such,
// in an AppleDouble file "._name" next to it. Reading makes nothing. Errors are the system's numbers, 0 for none.
namespace tavrik::core {

enum class MacCode : std::uint8_t { kType, kCreator };

constexpr std::size_t kMacCodeSize = 4;

// Four characters, or nothing where there are none.
int read_mac_code(const std::string& path, MacCode which, std::string& code);
// Shorter codes are filled with spaces, an empty one is none; longer ones are refused.
int write_mac_code(const std::string& path, MacCode which, std::string code);

int resource_fork_length(const std::string& path, std::uint64_t& length);

}  // namespace tavrik::core
