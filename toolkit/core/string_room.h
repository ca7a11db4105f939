#pragma once

#include <tavrik/string.h>

namespace tavrik::core {

// A new string whose bytes are still to be written, to `text + 1`. Raises OutOfMemoryException.
StringRecord* new_string_room(std::size_t length, std::uint32_t encoding);
// Keeps the first bytes of a string that nobody else has.
void shorten(StringRecord* string, std::size_t length) noexcept;

}  // namespace tavrik::core
