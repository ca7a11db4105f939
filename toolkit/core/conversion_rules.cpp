#include "toolkit/core/conversion_rules.h"

namespace tavrik::core {
namespace {

constexpr Currency kHighest{std::numeric_limits<std::int64_t>::max()};
constexpr Currency kLowest{std::numeric_limits<std::int64_t>::min()};

// Up to the width of the mantissa both numbers are exact, and the quotient is the nearest one. Beyond it the decimal
// text is, which a reader rounds once.
template <class T>
bool divides_exactly(Currency value) {
    constexpr std::int64_t kEnd = std::int64_t{1} << std::numeric_limits<T>::digits;
    return value.ten_thousandths >= -kEnd && value.ten_thousandths <= kEnd;
}
template <class T>
T quotient(Currency value) {
    return static_cast<T>(value.ten_thousandths) / T{kCurrencyUnit};
}

}  // namespace

Currency currency_of(std::int64_t whole) noexcept {
    Currency value{};
    if (!__builtin_mul_overflow(whole, std::int64_t{kCurrencyUnit}, &value.ten_thousandths)) return value;
    return whole < 0 ? kLowest : kHighest;
}

Currency currency_of(std::uint64_t whole) noexcept {
    constexpr auto kMost = static_cast<std::uint64_t>(kHighest.ten_thousandths / kCurrencyUnit);
    return whole > kMost ? kHighest : currency_of(static_cast<std::int64_t>(whole));
}

Currency currency_of(double value) noexcept {
    constexpr double kEnd = 1e15;  // beyond all there are, and few enough for a mantissa behind a point
    if (std::isnan(value)) return {0};
    if (value >= kEnd) return kHighest;
    if (value <= -kEnd) return kLowest;

    // As mantissa * 2^-places, all of it is exact in 128 bits.
    __extension__ using Wide = unsigned __int128;
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(value), &exponent);
    constexpr int kMantissa = std::numeric_limits<double>::digits;
    const Wide product = static_cast<Wide>(std::ldexp(fraction, kMantissa)) * kCurrencyUnit;
    const int places = kMantissa - exponent;
    if (places > std::numeric_limits<std::uint64_t>::digits + kMantissa) return {0};
    const Wide magnitude = (product + (Wide{1} << (places - 1))) >> places;
    if (magnitude > static_cast<Wide>(kHighest.ten_thousandths)) return value < 0 ? kLowest : kHighest;
    const auto count = static_cast<std::int64_t>(magnitude);
    return {value < 0 ? -count : count};
}

double double_of(Currency value) noexcept {
    return divides_exactly<double>(value) ? quotient<double>(value) : read_double(NumberText(value).view());
}

float single_of(Currency value) noexcept {
    return divides_exactly<float>(value) ? quotient<float>(value) : read_single(NumberText(value).view());
}

String text_of(OSType type) {
    char characters[4];
    for (int i = 0; i < 4; ++i) characters[i] = static_cast<char>(type.code >> (24 - 8 * i) & 0xFF);
    return String(std::string_view(characters, sizeof characters));
}

String text_of(const NumberText& text) { return String(text.view()); }

}  // namespace tavrik::core
