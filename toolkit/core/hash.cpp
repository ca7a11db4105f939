#include "toolkit/core/hash.h"

#include <random>

namespace tavrik::core {
namespace {

HashSeed draw_seed() {
    std::random_device source;
    const auto word = [&] { return std::uint64_t{source()} << 32 | source() | 1; };
    return {word(), word(), word()};
}

}  // namespace

const HashSeed& process_seed() {
    static const HashSeed drawn = draw_seed();
    return drawn;
}

std::uint64_t hash_bytes(std::string_view bytes, const HashSeed& seed) noexcept {
    std::uint64_t hash = seed.third ^ bytes.size();
    if (bytes.size() > 16) {
        const char* const last = bytes.data() + bytes.size() - 16;
        for (const char* at = bytes.data(); at < last; at += 16) {
            hash = mix(load<std::uint64_t>(at) ^ seed.first ^ hash, load<std::uint64_t>(at + 8) ^ seed.second);
        }
        bytes = {last, 16};
    }
    const Words words = short_words(bytes);
    return mix(mix(words.low ^ seed.first ^ hash, words.high ^ seed.second), seed.third);
}

}  // namespace tavrik::core
