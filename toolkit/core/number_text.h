#pragma once

#include <tavrik/values.h>

#include <array>
#include <concepts>
#include <cstdint>
#include <limits>
#include <string_view>

// Numbers as text and back. No locale has a say in it, and what was written reads as the same number.
namespace tavrik::core {

// How many of what a Currency counts are 1.
inline constexpr std::int32_t kCurrencyUnit = 10'000;
// What of a number makes a color.
inline constexpr std::uint32_t kColorBits = 0xFFFFFF;

// The text of a number, in place.
class NumberText {
public:
    explicit NumberText(std::int64_t value) noexcept;
    explicit NumberText(std::uint64_t value) noexcept;
    explicit NumberText(float value) noexcept;
    explicit NumberText(double value) noexcept;
    explicit NumberText(Currency value) noexcept;

    // "0x..." and "#rrggbb".
    static NumberText of_address(std::uintptr_t address) noexcept;
    static NumberText of_color(Color color) noexcept;

    std::string_view view() const noexcept { return {bytes_.data(), size_}; }

private:
    NumberText() = default;
    // What std::to_chars makes of the arguments.
    template <class... Arguments>
    void put(Arguments... arguments) noexcept;
    template <class T>
    void put_floating(T value) noexcept;
    void append(std::string_view text) noexcept;

    std::array<char, 32> bytes_;
    std::size_t size_ = 0;
};

// The decimal number at the start, behind white space: 0 if there is none, infinity if it is too large.
double read_number(std::string_view text) noexcept;

// The same, and "inf" and "nan" in any letter case where they are all of the text.
double read_double(std::string_view text) noexcept;
float read_single(std::string_view text) noexcept;

// The exact value, rounded half away from zero behind the fourth decimal, and the nearest one where it is too large.
Currency read_currency(std::string_view text) noexcept;

// "0x..." and "#rrggbb", or else an integer.
std::uintptr_t read_address(std::string_view text) noexcept;
Color read_color(std::string_view text) noexcept;

// "true" in any letter case, or a number other than 0.
bool read_boolean(std::string_view text) noexcept;

struct WholeNumber {
    bool negative = false;
    std::uint64_t magnitude = 0;  // the highest one where it is too large
};
WholeNumber read_whole_number(std::string_view text) noexcept;

// The integer at the start, behind white space; the nearest one where it is too large or too small.
template <std::integral T>
T read_integer(std::string_view text) noexcept {
    const auto [negative, magnitude] = read_whole_number(text);
    constexpr auto kHighest = static_cast<std::uint64_t>(std::numeric_limits<T>::max());
    if (!negative) return static_cast<T>(magnitude < kHighest ? magnitude : kHighest);
    if constexpr (std::unsigned_integral<T>) {
        return 0;
    } else {
        return magnitude > kHighest ? std::numeric_limits<T>::min() : static_cast<T>(-static_cast<T>(magnitude));
    }
}

}  // namespace tavrik::core
