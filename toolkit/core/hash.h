#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

// Hashes with a seed that the process draws at its start, so that nobody can choose keys that collide.
namespace tavrik::core {

struct HashSeed {
    std::uint64_t first;
    std::uint64_t second;
    std::uint64_t third;
};

// The one of this process.
const HashSeed& process_seed();

// The two halves of a 128-bit product, folded: every bit of either factor reaches every bit of the result.
inline std::uint64_t mix(std::uint64_t a, std::uint64_t b) noexcept {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

inline std::uint64_t hash_words(std::uint64_t low, std::uint64_t high, const HashSeed& seed) noexcept {
    return mix(mix(low ^ seed.first, high ^ seed.second), seed.third);
}

std::uint64_t hash_bytes(std::string_view bytes, const HashSeed& seed) noexcept;

// The first byte is the lowest, on every machine.
template <class Word>
std::uint64_t load(const char* bytes) noexcept {
    Word word{};
    std::memcpy(&word, bytes, sizeof word);
    if constexpr (std::endian::native == std::endian::little) return word;
    return __builtin_bswap64(word) >> (64 - 8 * sizeof word);
}

struct Words {
    std::uint64_t low;
    std::uint64_t high;
};

// The bytes of a text of at most 16, read by loads that overlap: two texts of one length have the same words just when
// they are the same.
inline Words short_words(std::string_view bytes) noexcept {
    const char* const begin = bytes.data();
    const std::size_t size = bytes.size();
    if (size >= 8) return {load<std::uint64_t>(begin), load<std::uint64_t>(begin + size - 8)};
    if (size >= 4) return {load<std::uint32_t>(begin), load<std::uint32_t>(begin + size - 4)};
    if (size == 0) return {0, 0};
    const auto byte = [&](std::size_t at) { return std::uint64_t{static_cast<unsigned char>(begin[at])}; };
    return {byte(0) | byte(size / 2) << 8 | byte(size - 1) << 16, 0};
}

}  // namespace tavrik::core
