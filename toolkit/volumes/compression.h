#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavrik::volume {

// Compressed, or nothing where that wouldn't be smaller.
std::string compressed(std::string_view bytes);
// Throws Failure if that isn't what comes out.
std::string uncompressed(std::string_view bytes, std::uint64_t size);

}  // namespace tavrik::volume
