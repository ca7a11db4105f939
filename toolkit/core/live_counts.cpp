#include "toolkit/core/live_counts.h"

#include <bit>
#include <utility>

namespace tavrik::core {
namespace {

constexpr std::size_t lowest_bit(std::size_t number) { return number & (~number + 1); }

}  // namespace

void LiveCounts::sum(std::vector<std::uint32_t>& counts) noexcept {
    for (std::size_t i = 1; i < counts.size(); ++i) {
        const std::size_t outer = i + lowest_bit(i);
        if (outer < counts.size()) counts[outer] += counts[i];
    }
    sums_ = std::move(counts);
}

void LiveCounts::change(std::size_t place, int by) noexcept {
    for (std::size_t i = place / kBlock + 1; i < sums_.size(); i += lowest_bit(i)) {
        sums_[i] += static_cast<std::uint32_t>(by);
    }
}

std::size_t LiveCounts::find_block(std::size_t& position) const noexcept {
    std::size_t blocks = 0;
    for (std::size_t step = std::bit_floor(sums_.size() - 1); step != 0; step /= 2) {
        const std::size_t next = blocks + step;
        if (next >= sums_.size() || sums_[next] > position) continue;
        blocks = next;
        position -= sums_[next];
    }
    return blocks * kBlock;
}

}  // namespace tavrik::core
