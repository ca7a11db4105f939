#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tavrik::core {

// How many of the places of each block of 64 are in use, as sums from which the block of the n-th used place is found
// in logarithmic time (a binary indexed tree).
class LiveCounts {
public:
    static constexpr std::size_t kBlock = 64;

    bool is_built() const noexcept { return !sums_.empty(); }
    void drop() noexcept { sums_.clear(); }

    // `live` tells of each of `places` whether it is in use.
    template <class Live>
    void build(std::size_t places, Live live) {
        std::vector<std::uint32_t> counts(places / kBlock + 2);
        for (std::size_t place = 0; place < places; ++place) counts[place / kBlock + 1] += live(place) ? 1U : 0U;
        sum(counts);
    }

    // A place came into use (+1) or went out of it (-1).
    void change(std::size_t place, int by) noexcept;
    // The first place of the block that has the used place number `position`, which becomes the number in that block.
    std::size_t find_block(std::size_t& position) const noexcept;

private:
    void sum(std::vector<std::uint32_t>& counts) noexcept;

    std::vector<std::uint32_t> sums_;  // [i] is the sum of the blocks from i minus its lowest bit up to i, exclusively
};

}  // namespace tavrik::core
