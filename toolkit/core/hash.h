#pragma once

#include <cstdint>
#include <string_view>

// Hashes with a seed that the process draws at its start, so that nobody can choose keys that collide.
namespace tavrik::core {

std::uint64_t hash_bytes(std::string_view bytes) noexcept;
std::uint64_t hash_word(std::uint64_t word) noexcept;

}  // namespace tavrik::core
