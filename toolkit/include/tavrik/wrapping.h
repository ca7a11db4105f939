#pragma once

#include <cstdint>

// Positions and sizes wrap around at the ends of their numbers.
namespace tavrik {

constexpr std::int32_t wrapping_sum(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
constexpr std::int32_t wrapping_difference(std::int32_t a, std::int32_t b) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

}  // namespace tavrik
