#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8 and UTF-16. What is no valid sequence becomes U+FFFD.
namespace tavrik::core {

std::size_t count_utf16(std::string_view utf8) noexcept;
// Writes that many units.
void write_utf16(std::string_view utf8, char16_t* units) noexcept;

std::string utf8_of(std::u16string_view units);

}  // namespace tavrik::core
