#pragma once

#include <cstddef>
#include <string_view>

// Bytes as characters: one begins at the first byte, and at every byte that doesn't continue a UTF-8 sequence. So every
// text has characters, also one that isn't UTF-8, and cutting one loses no byte.
namespace tavrik::core {

std::size_t count_characters(std::string_view text) noexcept;
// The offset of the byte at which the character after the next `count` begins, or the text's end.
std::size_t skip_characters(std::string_view text, std::size_t from, std::size_t count) noexcept;

// As many bytes of a text as a length byte can count, cut where a character begins.
std::string_view countable(std::string_view text) noexcept;

// Whether two texts are the same but for the case of ASCII letters.
bool equal_any_case(std::string_view a, std::string_view b) noexcept;

}  // namespace tavrik::core
