#pragma once

#include "toolkit/core/blocks.h"
#include "toolkit/core/live_counts.h"
#include "toolkit/core/value_keys.h"

#include <array>
#include <span>

namespace tavrik::core {

// A hash table of variants. Entries lie dense, in the order in which their keys came. A bin is one word: the place of
// an entry in as many bits as there are for the home bin, and above it those bits of the hash that don't tell the home
// bin, so that a search seldom looks at another entry than its own.
//
// A removed entry leaves a gap. Gaps are closed when half of the places are gaps, when a quarter are and there is no
// room for one more, and when positions have been asked for often enough to pay for it. So everything takes constant
// amortised time, but for the key at a position between removals, which takes logarithmic time.
//
// Nothing here runs code of the class layer: what an operation takes out is given back, for the caller to release when
// the table is whole again.
class HashTable final : public NativeState {
public:
    struct Entry {
        Object* key;
        Object* value;
        KeyImage image;

        bool is_gap() const noexcept { return image.high == kGap; }
    };
    // What was under a key.
    struct Taken {
        bool found = false;
        Ref<Object> key;
        Ref<Object> value;
    };

    HashTable() { bins_ = few_bins_.data(); }
    ~HashTable() override { clear(); }

    std::size_t count() const noexcept { return count_; }
    std::int32_t bins() const noexcept { return static_cast<std::int32_t>(mask_ + 1); }

    const Entry* find(const Object* key) const;
    // The entry at a position in the order of the keys, or nullptr.
    const Entry* at(std::size_t position) noexcept;
    // All entries in their order, with the gaps.
    std::span<const Entry> entries() const noexcept { return {entries_.data(), places_}; }

    // Both throw std::bad_alloc, and have changed nothing then. A key that is there stays, with another value.
    Ref<Object> set(Object* key, Object* value);
    // As many bins as that, rounded up to a power of two in which the entries have room.
    void set_bins(std::int32_t bins);

    Taken remove(const Object* key);
    void clear() noexcept;

private:
    using Bin = std::uint32_t;  // 0 if it is empty: places in bins count from 1

    static constexpr std::uint64_t kGap = ~std::uint64_t{0};
    static constexpr std::size_t kFewestBins = 8;
    static constexpr std::size_t kMostBins = std::size_t{1} << 30;

    static constexpr std::size_t most_entries(std::size_t bins) { return bins * 13 / 16; }

    std::uint32_t hash_of(const KeyImage& image) const noexcept {
        return static_cast<std::uint32_t>(hash_image(image, seed_) >> 32);
    }
    std::size_t home_of(std::uint32_t hash) const noexcept { return hash >> (32 - bits_); }
    Bin make_bin(std::uint32_t hash, std::size_t place) const noexcept {
        return hash << bits_ | (static_cast<Bin>(place) + 1);
    }
    std::size_t place_in(Bin bin) const noexcept { return (bin & mask_) - std::size_t{1}; }
    std::size_t next(std::size_t bin) const noexcept { return (bin + 1) & mask_; }

    // The bin with that key, or the empty one where its search ends.
    std::size_t search(const KeyImage& image, std::uint32_t hash) const noexcept;
    void make_room();
    void use_bins(std::size_t bins);
    void fill_bins() noexcept;
    void empty_bin(std::size_t hole) noexcept;
    void leave_gap(std::size_t place) noexcept;
    void close_gaps() noexcept;
    bool count_live() noexcept;
    std::size_t place_of(std::size_t position) noexcept;

    Bin* bins_ = nullptr;
    std::uint32_t mask_ = kFewestBins - 1;
    std::uint32_t bits_ = 3;
    LineBlock<Entry> entries_;
    HashSeed seed_ = process_seed();
    std::uint32_t count_ = 0;
    std::uint32_t places_ = 0;  // entries and gaps
    std::uint32_t capacity_ = 0;
    std::uint32_t asked_between_gaps_ = 0;
    Block<Bin> many_bins_;
    LiveCounts live_counts_;
    std::array<Bin, kFewestBins> few_bins_{};
};

}  // namespace tavrik::core
