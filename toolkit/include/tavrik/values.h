#pragma once

#include <cstdint>

namespace tavrik {

// Red, green and blue in the three lower bytes, red the highest of them.
struct Color {
    std::uint32_t rgb;

    bool operator==(const Color&) const = default;
};

constexpr Color rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return {static_cast<std::uint32_t>(red) << 16 | static_cast<std::uint32_t>(green) << 8 | blue};
}

// A count of ten-thousandths.
struct Currency {
    std::int64_t ten_thousandths;

    bool operator==(const Currency&) const = default;
};

}  // namespace tavrik
