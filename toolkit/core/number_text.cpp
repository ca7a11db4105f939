#include "toolkit/core/number_text.h"

#include "toolkit/core/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tavrik::core {
namespace {

constexpr std::uint64_t kUnit = kCurrencyUnit;
constexpr std::int64_t kDecimals = 4;  // of a Currency
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kWhiteSpace = " \t\r\n\v\f";
// No text is long enough to bring a number with a larger exponent back into range.
constexpr std::int64_t kLargestExponent = std::int64_t{1} << 40;

bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string_view without_leading_space(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kWhiteSpace), text.size()));
}
std::string_view trimmed(std::string_view text) {
    text = without_leading_space(text);
    return text.substr(0, text.find_last_not_of(kWhiteSpace) + 1);
}
std::string_view without_leading_zeros(std::string_view digits) {
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

bool take_sign(std::string_view& text) {
    if (!text.starts_with('-') && !text.starts_with('+')) return false;
    const bool negative = text.front() == '-';
    text.remove_prefix(1);
    return negative;
}

std::string_view take_digits(std::string_view& text) {
    const auto end = std::ranges::find_if_not(text, is_digit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

// The parts of the decimal number at the start of a text.
struct Decimal {
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;
    std::int64_t exponent = 0;
    std::string_view magnitude;  // all of it but the sign

    bool empty() const { return whole.empty() && fraction.empty(); }

    // Where the point stands before the first digit that isn't 0, negative for zeros behind the point.
    std::int64_t first_place() const {
        const auto size = [](std::string_view digits) { return static_cast<std::int64_t>(digits.size()); };
        const std::int64_t places = size(without_leading_zeros(whole));
        return exponent + (places > 0 ? places : size(without_leading_zeros(fraction)) - size(fraction));
    }
};

std::int64_t take_exponent(std::string_view& text) {
    std::string_view rest = text;
    if (!rest.starts_with('e') && !rest.starts_with('E')) return 0;
    rest.remove_prefix(1);
    const bool negative = take_sign(rest);
    const std::string_view digits = take_digits(rest);
    if (digits.empty()) return 0;
    text = rest;
    std::int64_t exponent = 0;
    for (const char digit : digits) exponent = std::min(exponent * 10 + (digit - '0'), kLargestExponent);
    return negative ? -exponent : exponent;
}

Decimal read_decimal(std::string_view text) {
    Decimal decimal;
    std::string_view rest = without_leading_space(text);
    decimal.negative = take_sign(rest);
    const std::string_view start = rest;
    decimal.whole = take_digits(rest);
    if (rest.starts_with('.')) {
        rest.remove_prefix(1);
        decimal.fraction = take_digits(rest);
    }
    if (decimal.empty()) return decimal;
    decimal.exponent = take_exponent(rest);
    decimal.magnitude = start.substr(0, start.size() - rest.size());
    return decimal;
}

template <class T>
T read_floating(std::string_view text) {
    const Decimal decimal = read_decimal(text);
    if (decimal.empty()) return 0;
    const std::string_view digits = decimal.magnitude;
    T value = 0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), value).ec == std::errc::result_out_of_range) {
        value = decimal.first_place() > 0 ? std::numeric_limits<T>::infinity() : T{0};
    }
    return decimal.negative ? -value : value;
}

template <class T>
T read_floating_or_word(std::string_view text) {
    std::string_view word = trimmed(text);
    const bool negative = take_sign(word);
    if (equal_any_case(word, "nan")) return std::numeric_limits<T>::quiet_NaN();
    if (!equal_any_case(word, "inf")) return read_floating<T>(text);
    return negative ? -std::numeric_limits<T>::infinity() : std::numeric_limits<T>::infinity();
}

std::uint64_t read_hex(std::string_view digits) {
    std::uint64_t value = 0;
    const auto error = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16).ec;
    return error == std::errc::result_out_of_range ? std::numeric_limits<std::uint64_t>::max() : value;
}

Currency currency_of(bool negative, std::uint64_t magnitude) {
    constexpr auto kHighest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    magnitude = std::min(magnitude, negative ? kHighest + 1 : kHighest);
    return {static_cast<std::int64_t>(negative ? 0 - magnitude : magnitude)};
}

}  // namespace

template <class... Arguments>
void NumberText::put(Arguments... arguments) noexcept {
    char* const end = std::to_chars(bytes_.data(), bytes_.data() + bytes_.size(), arguments...).ptr;
    size_ = static_cast<std::size_t>(end - bytes_.data());
}

// A NaN has no sign. An exponent is for the numbers that people would write with one.
template <class T>
void NumberText::put_floating(T value) noexcept {
    constexpr T kLeastPlain = static_cast<T>(1e-4L);
    constexpr T kEndOfPlain = static_cast<T>(1e15L);
    if (std::isnan(value)) return append("nan");
    const T magnitude = std::fabs(value);
    const bool is_plain = magnitude == 0 || (magnitude >= kLeastPlain && magnitude < kEndOfPlain);
    put(value, is_plain ? std::chars_format::fixed : std::chars_format::scientific);
}

NumberText::NumberText(std::int64_t value) noexcept { put(value); }
NumberText::NumberText(std::uint64_t value) noexcept { put(value); }
NumberText::NumberText(float value) noexcept { put_floating(value); }
NumberText::NumberText(double value) noexcept { put_floating(value); }

NumberText::NumberText(Currency value) noexcept {
    const bool negative = value.ten_thousandths < 0;
    const auto bits = static_cast<std::uint64_t>(value.ten_thousandths);
    const std::uint64_t magnitude = negative ? 0 - bits : bits;
    if (negative) append("-");
    append(NumberText(magnitude / kUnit).view());
    if (magnitude % kUnit == 0) return;
    // A 1 in front keeps the zeros behind the point.
    const NumberText digits(kUnit + magnitude % kUnit);
    append(".");
    append(digits.view().substr(1, digits.view().find_last_not_of('0')));
}

NumberText NumberText::of_address(std::uintptr_t address) noexcept {
    NumberText text;
    text.append("0x");
    std::array<char, 16> digits{};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), address, 16).ptr;
    text.append({digits.data(), static_cast<std::size_t>(end - digits.data())});
    return text;
}

NumberText NumberText::of_color(Color color) noexcept {
    NumberText text;
    text.append("#");
    for (int shift = 20; shift >= 0; shift -= 4) text.append(kHexDigits.substr(color.rgb >> shift & 0xF, 1));
    return text;
}

void NumberText::append(std::string_view text) noexcept {
    std::ranges::copy(text, bytes_.data() + size_);
    size_ += text.size();
}

double read_number(std::string_view text) noexcept { return read_floating<double>(text); }
double read_double(std::string_view text) noexcept { return read_floating_or_word<double>(text); }
float read_single(std::string_view text) noexcept { return read_floating_or_word<float>(text); }

Currency read_currency(std::string_view text) noexcept {
    const Decimal decimal = read_decimal(text);
    const std::string_view whole = without_leading_zeros(decimal.whole);
    // What counts stands in front of this place of the digits; the one at it says whether to round up.
    const std::int64_t end = static_cast<std::int64_t>(whole.size()) + decimal.exponent + kDecimals;
    const auto digit_at = [&](std::int64_t place) -> std::uint64_t {
        if (place < 0) return 0;
        auto at = static_cast<std::size_t>(place);
        if (at < whole.size()) return static_cast<std::uint64_t>(whole[at] - '0');
        at -= whole.size();
        return at < decimal.fraction.size() ? static_cast<std::uint64_t>(decimal.fraction[at] - '0') : 0;
    };

    // The digits behind the last one are zeros, which matter only where something stands in front of them.
    const auto digits = static_cast<std::int64_t>(whole.size() + decimal.fraction.size());
    constexpr std::uint64_t kHighest = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t magnitude = 0;
    for (std::int64_t place = 0; place < end && (magnitude != 0 || place < digits); ++place) {
        if (magnitude > (kHighest - 9) / 10) return currency_of(decimal.negative, kHighest);
        magnitude = magnitude * 10 + digit_at(place);
    }
    if (digit_at(end) >= 5) ++magnitude;
    return currency_of(decimal.negative, magnitude);
}

std::uintptr_t read_address(std::string_view text) noexcept {
    const std::string_view rest = without_leading_space(text);
    if (rest.starts_with("0x") || rest.starts_with("0X")) return read_hex(rest.substr(2));
    return read_integer<std::uintptr_t>(text);
}

Color read_color(std::string_view text) noexcept {
    constexpr std::size_t kDigits = 6;
    constexpr std::string_view kHex = "0123456789abcdefABCDEF";
    std::string_view rest = without_leading_space(text);
    if (!rest.starts_with('#')) return {read_integer<std::uint32_t>(text) & kColorBits};
    rest = rest.substr(1, kDigits);
    if (rest.size() < kDigits || rest.find_first_not_of(kHex) != std::string_view::npos) return {0};
    return {static_cast<std::uint32_t>(read_hex(rest))};
}

bool read_boolean(std::string_view text) noexcept {
    return equal_any_case(trimmed(text), "true") || read_double(text) != 0;
}

WholeNumber read_whole_number(std::string_view text) noexcept {
    std::string_view rest = without_leading_space(text);
    WholeNumber number{.negative = take_sign(rest)};
    const std::string_view digits = take_digits(rest);
    const char* const end = digits.data() + digits.size();
    if (std::from_chars(digits.data(), end, number.magnitude).ec == std::errc::result_out_of_range) {
        number.magnitude = std::numeric_limits<std::uint64_t>::max();
    }
    return number;
}

}  // namespace tavrik::core
