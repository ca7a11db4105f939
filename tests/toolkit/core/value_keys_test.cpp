#include "toolkit/core/value_keys.h"

#include "tests/support/balance.h"
#include "tests/support/probe.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr std::int64_t kTwoTo53 = std::int64_t{1} << 53;
constexpr std::uint64_t kTwoTo63 = std::uint64_t{1} << 63;

Ref<Variant> text(std::string_view bytes) { return StringToVariant(String(bytes)); }
Ref<Variant> currency(std::int64_t ten_thousandths) { return CurrencyToVariant({ten_thousandths}); }

using Family = std::vector<Ref<Variant>>;

// All members of a family are one key, and no two families share one.
std::vector<Family> families() {
    std::vector<Family> all = {
        {nullptr},
        {Int32ToVariant(0), DoubleToVariant(0.0), DoubleToVariant(-0.0), SingleToVariant(-0.0F), currency(0)},
        {Int32ToVariant(1), UInt32ToVariant(1), Int64ToVariant(1), UInt64ToVariant(1), SingleToVariant(1),
         DoubleToVariant(1), currency(10'000)},
        {Int32ToVariant(-1), Int64ToVariant(-1), DoubleToVariant(-1), currency(-10'000)},
        {UInt32ToVariant(UINT32_MAX), Int64ToVariant(UINT32_MAX), DoubleToVariant(UINT32_MAX)},
        {Int64ToVariant(kTwoTo53), DoubleToVariant(0x1p53)},
        {Int64ToVariant(kTwoTo53 + 1), UInt64ToVariant(kTwoTo53 + 1)},
        {UInt64ToVariant(kTwoTo63), DoubleToVariant(0x1p63), SingleToVariant(0x1p63F)},
        {UInt64ToVariant(UINT64_MAX)},
        {DoubleToVariant(0x1p64)},
        {Int64ToVariant(INT64_MIN), DoubleToVariant(-0x1p63)},
        {DoubleToVariant(0.5), SingleToVariant(0.5F), currency(5'000)},
        {DoubleToVariant(-0.0625), currency(-625)},
        {DoubleToVariant(0.1)},
        {currency(1'000)},
        {SingleToVariant(0.1F), DoubleToVariant(0.1F)},
        {currency(625 * (kTwoTo53 + 1))},
        {currency(625 * (kTwoTo53 + 2)), DoubleToVariant(0x1p49 + 0.125)},
        {DoubleToVariant(kNaN), DoubleToVariant(std::copysign(kNaN, -1.0)),
         SingleToVariant(std::numeric_limits<float>::quiet_NaN())},
        {DoubleToVariant(kInfinity), SingleToVariant(std::numeric_limits<float>::infinity())},
        {DoubleToVariant(-kInfinity)},
        {BooleanToVariant(true), BooleanToVariant(true)},
        {BooleanToVariant(false)},
        {ColorToVariant({1}), ColorToVariant({1})},
        {PtrToVariant(nullptr), PtrToVariant(nullptr)},
        {OSTypeToVariant({1}), OSTypeToVariant({1})},
        {WindowPtrToVariant({nullptr}), WindowPtrToVariant({nullptr})},
        {make_probe(1)},
        {make_probe(1)},
        {StructureToVariant("Point"_s, "1234"_s), StructureToVariant("Point"_s, "1234"_s)},
        {StructureToVariant("Point1"_s, "234"_s)},
        {StructureToVariant("Point"_s, "1235"_s)},
        {StructureToVariant({}, {})},
    };
    // Texts in all their forms, short and long.
    for (const std::string& bytes :
         {std::string("m\u00fcde"), std::string("\u20ac and more than sixteen bytes of it")}) {
        std::string with_length(1, static_cast<char>(bytes.size()));
        with_length += bytes;
        const WString wide = RuntimeNewWString(bytes);
        const CFStringRef platform = RuntimeNewCFString(bytes);
        all.push_back({text(bytes), CStringToVariant({bytes.c_str()}),
                       PStringToVariant({reinterpret_cast<const unsigned char*>(with_length.data())}),
                       WStringToVariant(wide), CFStringRefToVariant(platform)});
        UnlockWString(wide);
        UnlockCFString(platform);
    }
    // Each length around those at which texts are read in another way, and texts that differ in their first or last
    // byte.
    for (const std::size_t length :
         std::initializer_list<std::size_t>{0, 1, 2, 3, 4, 7, 8, 9, 14, 15, 16, 17, 31, 32, 33, 200}) {
        const std::string bytes(length, '\0');
        all.push_back({text(bytes), text(bytes)});
        for (std::size_t at = 0; at < length; ++at) {
            std::string other = bytes;
            other[at] = '\1';
            all.push_back({text(other), text(other)});
        }
    }
    return all;
}

TEST(ValueKeys, Are_equal_within_their_family_alone_and_then_hash_alike) {
    const Balance balance;
    const std::vector<Family> all = families();
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = 0; j < all.size(); ++j) {
            for (const Ref<Variant>& a : all[i]) {
                for (const Ref<Variant>& b : all[j]) {
                    ASSERT_EQ(core::equal_values(a.object(), b.object()), i == j) << i << " and " << j;
                    if (i == j) {
                        ASSERT_EQ(core::hash_value(a.object()), core::hash_value(b.object())) << i;
                    }
                }
            }
        }
    }
}

TEST(ValueKeys, Spread_hostile_patterns_over_all_bins) {
    using Pattern = Ref<Variant> (*)(std::uint32_t);
    constexpr Pattern kPatterns[] = {
        [](std::uint32_t i) { return UInt32ToVariant(i); },
        [](std::uint32_t i) { return Int64ToVariant(std::int64_t{i} << 40); },
        [](std::uint32_t i) { return DoubleToVariant(std::ldexp(1 + i, -40)); },
        [](std::uint32_t i) { return PtrToVariant(reinterpret_cast<void*>(std::uintptr_t{i} << 12)); },
        [](std::uint32_t i) { return text("key " + std::to_string(i)); },
        [](std::uint32_t i) { return text(std::to_string(i) + std::string(40, 'x')); },
        [](std::uint32_t i) { return text(std::string(40, 'x') + std::to_string(i)); },
        // Texts of two blocks that weak hashes take for each other.
        [](std::uint32_t i) {
            std::string bytes;
            for (int bit = 0; bit < 14; ++bit) bytes += (i >> bit & 1) != 0 ? "Aa" : "BB";
            return text(bytes);
        },
    };
    constexpr std::uint32_t kKeys = 1 << 14;
    for (const Pattern pattern : kPatterns) {
        std::vector<int> of_high_bits(1024);
        std::vector<int> of_low_bits(1024);
        for (std::uint32_t i = 0; i < kKeys; ++i) {
            const std::uint64_t hash = core::hash_value(pattern(i).object());
            ++of_high_bits[hash >> 54];
            ++of_low_bits[hash & 1023];
        }
        // 16 are expected; a random spread has 60 somewhere once in 10^12 runs.
        EXPECT_LT(*std::ranges::max_element(of_high_bits), 60) << &pattern - kPatterns;
        EXPECT_LT(*std::ranges::max_element(of_low_bits), 60) << &pattern - kPatterns;
    }
}

}  // namespace
}  // namespace tavrik::test
