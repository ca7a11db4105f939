#include "toolkit/core/hash_table.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <new>
#include <utility>

namespace tavrik::core {
namespace {

// So few gaps are passed over quickly, and closing them is put off.
constexpr std::size_t kFewPlaces = 32;
// A position asked for between gaps pays for so many bins, when the gaps are closed.
constexpr std::uint32_t kBinsPaid = 16;

using FewBins [[gnu::vector_size(16)]] = std::uint32_t;
using Halves [[gnu::vector_size(16)]] = std::uint64_t;
constexpr std::size_t kBinsAtOnce = 4;

// From here on a table grows fourfold: room that isn't used yet is no memory, as long as it is whole pages.
constexpr std::size_t kManyBins = 1024;

// How many of a few bins come before the first that is empty or has the wanted bits; all of them if there is none.
inline std::size_t bins_passed(const std::uint32_t* bins, std::uint32_t wanted, std::uint32_t fragment) {
    FewBins few;
    std::memcpy(&few, bins, sizeof few);
    const FewBins other_bits = (few ^ wanted) & fragment;
    const FewBins lanes = {1, 2, 4, 8};
    const auto marked = std::bit_cast<Halves>(((few == 0) | (other_bits == 0)) & std::bit_cast<FewBins>(lanes));
    const std::uint64_t halves = marked[0] | marked[1];
    return static_cast<std::size_t>(std::countr_zero(halves | halves >> 32 | 1U << kBinsAtOnce));
}

void release_all(std::span<const HashTable::Entry> entries) noexcept {
    for (const HashTable::Entry& entry : entries) {
        if (entry.is_gap()) continue;
        if (entry.image.is_long()) unlock(entry.image.text());
        unlock(entry.key);
        unlock(entry.value);
    }
}

}  // namespace

inline std::size_t HashTable::search(const KeyImage& image, std::uint32_t hash) const noexcept {
    const Bin wanted = hash << bits_;
    for (std::size_t at = home_of(hash);;) {
        // How many bins a search passes can't be foreseen, so it isn't branched on.
        if (at + kBinsAtOnce <= mask_) [[likely]] {
            const std::size_t passed = bins_passed(bins_ + at, wanted, ~mask_);
            at += passed;
            if (passed == kBinsAtOnce) [[unlikely]]
                continue;
        }
        const Bin bin = bins_[at];
        if (bin == 0 || ((bin ^ wanted) <= mask_ && entries_[place_in(bin)].image == image)) return at;
        at = next(at);
    }
}

const HashTable::Entry* HashTable::find(const Object* key) const {
    const KeyValue wanted(key);
    const Bin bin = bins_[search(wanted.image(), hash_of(wanted.image()))];
    return bin == 0 ? nullptr : &entries_[place_in(bin)];
}

Ref<Object> HashTable::set(Object* key, Object* value) {
    const KeyValue wanted(key);
    const std::uint32_t hash = hash_of(wanted.image());
    std::size_t at = search(wanted.image(), hash);
    if (bins_[at] != 0) {
        lock(value);
        return Ref<Object>::adopt(std::exchange(entries_[place_in(bins_[at])].value, value));
    }
    if (places_ == capacity_) [[unlikely]] {
        make_room();
        at = search(wanted.image(), hash);
    }
    lock(key);
    lock(value);
    if (wanted.image().is_long()) lock(wanted.image().text());
    entries_[places_] = {key, value, wanted.image()};
    if (live_counts_.is_built()) live_counts_.change(places_, 1);
    bins_[at] = make_bin(hash, places_);
    ++places_;
    ++count_;
    return nullptr;
}

void HashTable::make_room() {
    if (capacity_ == 0) return use_bins(mask_ + std::size_t{1});
    if (places_ - count_ > places_ / 4) return close_gaps();
    const std::size_t bins = mask_ + std::size_t{1};
    use_bins(bins < kManyBins ? bins * 2 : std::min(bins * 4, std::max(bins * 2, kMostBins)));
}

void HashTable::set_bins(std::int32_t bins) {
    std::size_t wanted = bins <= 0 ? kFewestBins : std::bit_ceil(static_cast<std::size_t>(bins));
    wanted = std::max(wanted, kFewestBins);
    while (most_entries(wanted) < count_) wanted *= 2;
    if (wanted != mask_ + std::size_t{1}) use_bins(wanted);
}

void HashTable::use_bins(std::size_t bins) {
    if (bins > kMostBins) throw std::bad_alloc();
    Block<Bin> fresh;
    if (bins > kFewestBins) {
        fresh.reset(static_cast<Bin*>(std::calloc(bins, sizeof(Bin))));
        if (fresh == nullptr) throw std::bad_alloc();
    }
    close_gaps();
    entries_.resize(places_, most_entries(bins));

    few_bins_ = {};
    many_bins_ = std::move(fresh);
    bins_ = many_bins_ == nullptr ? few_bins_.data() : many_bins_.get();
    mask_ = static_cast<std::uint32_t>(bins - 1);
    bits_ = static_cast<std::uint32_t>(std::bit_width(mask_));
    capacity_ = static_cast<std::uint32_t>(most_entries(bins));
    fill_bins();
}

// Enters all entries into empty bins, several at a time, so that the waits for memory overlap.
void HashTable::fill_bins() noexcept {
    std::array<std::uint32_t, 16> hashes{};
    for (std::size_t place = 0; place < places_;) {
        const std::size_t end = std::min<std::size_t>(places_, place + hashes.size());
        for (std::size_t ahead = place; ahead < end; ++ahead) {
            const std::uint32_t hash = hash_of(entries_[ahead].image);
            __builtin_prefetch(&bins_[home_of(hash)], 1);
            hashes[ahead - place] = hash;
        }
        for (const std::size_t first = place; place < end; ++place) {
            std::size_t at = home_of(hashes[place - first]);
            while (bins_[at] != 0) at = next(at);
            bins_[at] = make_bin(hashes[place - first], place);
        }
    }
}

HashTable::Taken HashTable::remove(const Object* key) {
    const KeyValue wanted(key);
    const std::size_t at = search(wanted.image(), hash_of(wanted.image()));
    if (bins_[at] == 0) return {};
    const std::size_t place = place_in(bins_[at]);
    const Entry entry = entries_[place];
    empty_bin(at);
    leave_gap(place);
    if (entry.image.is_long()) unlock(entry.image.text());
    return {true, Ref<Object>::adopt(entry.key), Ref<Object>::adopt(entry.value)};
}

// Closes up what follows, so that every search still meets no empty bin before its end.
void HashTable::empty_bin(std::size_t hole) noexcept {
    for (std::size_t at = next(hole); bins_[at] != 0; at = next(at)) {
        const std::size_t home = home_of(hash_of(entries_[place_in(bins_[at])].image));
        if (((at - home) & mask_) < ((at - hole) & mask_)) continue;
        bins_[hole] = bins_[at];
        hole = at;
    }
    bins_[hole] = 0;
}

void HashTable::leave_gap(std::size_t place) noexcept {
    entries_[place] = {nullptr, nullptr, {0, kGap}};
    --count_;
    if (live_counts_.is_built()) live_counts_.change(place, -1);
    while (places_ != 0 && entries_[places_ - 1].is_gap()) --places_;
    // Closing gaps empties all bins, also those that somebody asked for and that have no entry yet.
    if (places_ > kFewPlaces && places_ > mask_ / 8 && count_ < places_ / 2) close_gaps();
}

// Takes no memory, and so can't fail.
void HashTable::close_gaps() noexcept {
    if (count_ == places_) return;
    const auto* const end =
        std::remove_if(entries_.data(), entries_.data() + places_, [](const Entry& entry) { return entry.is_gap(); });
    places_ = static_cast<std::uint32_t>(end - entries_.data());
    asked_between_gaps_ = 0;
    live_counts_.drop();
    std::fill_n(bins_, mask_ + std::size_t{1}, Bin{0});
    fill_bins();
}

const HashTable::Entry* HashTable::at(std::size_t position) noexcept {
    if (position >= count_) return nullptr;
    return &entries_[count_ == places_ ? position : place_of(position)];
}

// Fails for want of memory.
bool HashTable::count_live() noexcept {
    try {
        live_counts_.build(capacity_,
                           [this](std::size_t place) { return place < places_ && !entries_[place].is_gap(); });
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::size_t HashTable::place_of(std::size_t position) noexcept {
    asked_between_gaps_ += kBinsPaid;
    if (asked_between_gaps_ >= mask_) {
        close_gaps();
        return position;
    }
    if (!live_counts_.is_built() && !count_live()) {
        close_gaps();
        return position;
    }
    std::size_t place = live_counts_.find_block(position);
    while (entries_[place].is_gap() || position-- != 0) ++place;
    return place;
}

void HashTable::clear() noexcept {
    // Releases may run code that uses the table.
    const LineBlock<Entry> entries = std::exchange(entries_, {});
    const std::size_t places = std::exchange(places_, 0);
    many_bins_ = nullptr;
    few_bins_ = {};
    bins_ = few_bins_.data();
    mask_ = kFewestBins - 1;
    bits_ = 3;
    count_ = capacity_ = asked_between_gaps_ = 0;
    live_counts_.drop();
    release_all({entries.data(), places});
}

}  // namespace tavrik::core
