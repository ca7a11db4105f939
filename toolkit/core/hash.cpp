#include "toolkit/core/hash.h"

#include <array>
#include <cstring>
#include <random>

namespace tavrik::core {
namespace {

struct Seeds {
    Seeds() {
        std::random_device source;
        for (std::uint64_t& seed : words) seed = std::uint64_t{source()} << 32 | source() | 1;
    }
    std::array<std::uint64_t, 4> words{};
};

const Seeds& seeds() {
    static const Seeds drawn;
    return drawn;
}

// The two halves of a 128-bit product, folded: every bit of either factor reaches every bit of the result.
std::uint64_t mix(std::uint64_t a, std::uint64_t b) {
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(a) * b;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

std::uint64_t load(const char* bytes, std::size_t count) {
    std::uint64_t word = 0;
    if (count != 0) std::memcpy(&word, bytes, count);
    return word;
}

}  // namespace

std::uint64_t hash_bytes(std::string_view bytes) noexcept {
    const auto& [s0, s1, s2, s3] = seeds().words;
    std::uint64_t hash = s0 ^ bytes.size();
    const char* at = bytes.data();
    std::size_t left = bytes.size();
    for (; left > 16; left -= 16, at += 16) hash = mix(load(at, 8) ^ s1 ^ hash, load(at + 8, 8) ^ s2);
    const std::size_t first = left < 8 ? left : 8;
    const std::uint64_t low = load(at, first);
    const std::uint64_t high = load(at + first, left - first);
    return mix(mix(low ^ s1 ^ hash, high ^ s2), s3 ^ bytes.size());
}

std::uint64_t hash_word(std::uint64_t word) noexcept {
    const auto& seed = seeds().words;
    return mix(mix(word ^ seed[0], seed[1]), word ^ seed[2]);
}

}  // namespace tavrik::core
