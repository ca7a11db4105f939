#pragma once

#include "toolkit/core/number_text.h"
#include "toolkit/core/platform_types.h"

#include <tavrik/string.h>
#include <tavrik/values.h>

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

// One value as another type: convert_to<To>(value), for every pair of types that has a conversion.
namespace tavrik::core {

template <class T>
concept Integer = std::integral<T> && !std::same_as<T, bool>;

// What a value is as a number of C++, where it is one.
template <class T>
requires std::is_arithmetic_v<T>
constexpr T number_of(T value) { return value; }
constexpr std::uint32_t number_of(Color color) { return color.rgb; }
constexpr std::uint32_t number_of(OSType type) { return type.code; }
inline std::uintptr_t number_of(void* address) { return reinterpret_cast<std::uintptr_t>(address); }

template <class T>
concept Number = requires(T value) {
    number_of(value);
};

// The nearest whole number towards zero. What is too large or too small gives the last number there is, and NaN 0.
template <Integer To, std::floating_point From>
To truncate(From value) {
    // Both ends are powers of two, or 0, and so exact.
    constexpr From kEnd = static_cast<From>(std::uint64_t{1} << (std::numeric_limits<To>::digits - 1)) * 2;
    constexpr To kLeast = std::numeric_limits<To>::min();
    if (std::isnan(value)) return 0;
    if (value >= kEnd) return std::numeric_limits<To>::max();
    return value <= static_cast<From>(kLeast) ? kLeast : static_cast<To>(value);
}

Currency currency_of(std::int64_t whole) noexcept;
Currency currency_of(std::uint64_t whole) noexcept;
// The nearest one; of two equally near ones that away from zero.
Currency currency_of(double value) noexcept;
// The nearest one.
double double_of(Currency value) noexcept;
float single_of(Currency value) noexcept;

String text_of(OSType type);
String text_of(const NumberText& text);

template <class To>
struct Conversion;

template <Integer To>
struct Conversion<To> {
    static To from(Currency value) { return static_cast<To>(value.ten_thousandths / kCurrencyUnit); }
    static To from(const String& text) { return read_integer<To>(text.view()); }
    template <Number From>
    static To from(From value) {
        if constexpr (std::floating_point<From>) {
            return truncate<To>(value);
        } else {
            return static_cast<To>(number_of(value));
        }
    }
};

template <>
struct Conversion<bool> {
    static bool from(Currency value) { return value.ten_thousandths != 0; }
    static bool from(const String& text) { return read_boolean(text.view()); }
    template <Number From>
    static bool from(From value) {
        return number_of(value) != 0;
    }
};

template <std::floating_point To>
struct Conversion<To> {
    static To from(Currency value) {
        if constexpr (std::same_as<To, float>) {
            return single_of(value);
        } else {
            return double_of(value);
        }
    }
    static To from(const String& text) {
        if constexpr (std::same_as<To, float>) {
            return read_single(text.view());
        } else {
            return read_double(text.view());
        }
    }
    template <Number From>
    static To from(From value) {
        return static_cast<To>(number_of(value));
    }
};

template <>
struct Conversion<Color> {
    static Color from(Color value) { return value; }
    static Color from(const String& text) { return read_color(text.view()); }
    template <Number From>
    static Color from(From value) {
        return {Conversion<std::uint32_t>::from(value) & kColorBits};
    }
};

template <>
struct Conversion<Currency> {
    static Currency from(Currency value) { return value; }
    static Currency from(const String& text) { return read_currency(text.view()); }
    static Currency from(std::uint64_t value) { return currency_of(value); }
    template <Number From>
    static Currency from(From value) {
        if constexpr (std::floating_point<From>) {
            return currency_of(static_cast<double>(value));
        } else {
            return currency_of(static_cast<std::int64_t>(value));
        }
    }
};

template <>
struct Conversion<void*> {
    static void* from(void* value) { return value; }
    static void* from(const String& text) { return address(read_address(text.view())); }
    template <Number From>
    static void* from(From value) {
        return address(static_cast<std::uintptr_t>(value));
    }

private:
    static void* address(std::uintptr_t number) { return reinterpret_cast<void*>(number); }
};

template <>
struct Conversion<String> {
    static String from(bool value) { return value ? "true"_s : "false"_s; }
    static String from(Currency value) { return text_of(NumberText(value)); }
    static String from(Color value) { return text_of(NumberText::of_color(value)); }
    static String from(void* value) { return text_of(NumberText::of_address(number_of(value))); }
    static String from(WindowPtr value) { return from(value.handle); }
    static String from(OSType value) { return text_of(value); }
    static String from(String value) { return value; }
    template <std::floating_point From>
    static String from(From value) {
        return text_of(NumberText(value));
    }
    template <std::signed_integral From>
    static String from(From value) {
        return text_of(NumberText(std::int64_t{value}));
    }
    template <std::unsigned_integral From>
    static String from(From value) {
        return text_of(NumberText(std::uint64_t{value}));
    }
};

}  // namespace tavrik::core
