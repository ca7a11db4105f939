#pragma once

#include <cstdint>

// The three fields of a map file that the tool knows: signed 32-bit integers, little-endian.
namespace tavrik::maptool {

struct MapField {
    std::uint64_t offset;
    std::int32_t when_nulled;
    std::int32_t when_restored;
};

// The one that tells the map's state: any value but `when_restored` means that the map is nulled.
inline constexpr MapField kStateField{.offset = 2952, .when_nulled = 0, .when_restored = 4666};

// In the order in which they are written.
inline constexpr MapField kMapFields[] = {
    {.offset = 2320, .when_nulled = 0, .when_restored = 5503},
    kStateField,
    {.offset = 2976, .when_nulled = -1, .when_restored = 13221},
};

}  // namespace tavrik::maptool
