#include "data/variants.h"
#include "tests/support/balance.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

__extension__ using Wide = __int128;
using Text = std::string;

// ---- What conversions have to give, by other means than theirs.

// Values as one of four types: what they are to an integer doesn't hang on more.
Wide source(std::integral auto value) { return value; }
Wide source(Color value) { return value.rgb; }
Wide source(OSType value) { return value.code; }
Wide source(void* value) { return static_cast<Wide>(reinterpret_cast<std::uintptr_t>(value)); }
long double source(std::floating_point auto value) { return value; }
Currency source(Currency value) { return value; }
const Text& source(const Text& value) { return value; }

template <class To>
To clamped(Wide value) {
    return static_cast<To>(std::clamp<Wide>(value, std::numeric_limits<To>::min(), std::numeric_limits<To>::max()));
}

Text printed(const char* format, auto value) {
    std::array<char, 600> bytes{};
    std::snprintf(bytes.data(), bytes.size(), format, value);
    return bytes.data();
}

// A decimal fraction in digits, as ten-thousandths.
Currency exact_currency(Text digits) {
    const bool negative = digits.starts_with('-');
    if (negative) digits.erase(0, 1);
    digits.resize(std::min(digits.find_first_not_of("0123456789."), digits.size()));
    const std::size_t point = std::min(digits.find('.'), digits.size());
    if (point > 20) return {negative ? INT64_MIN : INT64_MAX};
    Wide value = 0;
    for (const char digit : digits.substr(0, point)) value = value * 10 + (digit - '0');
    digits += "....00000";
    for (std::size_t i = 1; i <= 5; ++i) value = value * 10 + std::max(digits[point + i] - '0', 0);
    value = (value + 5) / 10;
    return {clamped<std::int64_t>(negative ? -value : value)};
}

Text text_of(bool value) { return value ? "true" : "false"; }
Text text_of(std::integral auto value) { return std::to_string(value); }
Text text_of(std::floating_point auto value) {
    std::array<char, 64> bytes{};
    const auto written = [&](std::chars_format format) {
        return Text(bytes.data(), std::to_chars(bytes.begin(), bytes.end(), value, format).ptr);
    };
    const Text scientific = written(std::chars_format::scientific);
    const std::size_t exponent_at = scientific.find('e') + 1;
    if (value == 0 || exponent_at == 0) return written(std::chars_format::fixed);
    const int exponent = std::stoi(scientific.substr(exponent_at));
    return exponent >= -4 && exponent < 15 ? written(std::chars_format::fixed) : scientific;
}
Text text_of(Currency value) {
    const Wide count = value.ten_thousandths;
    const auto magnitude = static_cast<std::uint64_t>(count < 0 ? -count : count);
    std::ostringstream text;
    text << (count < 0 ? "-" : "") << magnitude / 10000 << '.' << std::setw(4) << std::setfill('0')
         << magnitude % 10000;
    return text.str().substr(0, magnitude % 10000 == 0 ? text.str().find('.') : text.str().find_last_not_of('0') + 1);
}
Text text_of(Color value) { return printed("#%06x", value.rgb); }
Text text_of(void* value) { return printed("0x%zx", reinterpret_cast<std::size_t>(value)); }
Text text_of(WindowPtr value) { return text_of(value.handle); }
Text text_of(OSType value) {
    const std::uint32_t reversed = __builtin_bswap32(value.code);
    return {reinterpret_cast<const char*>(&reversed), sizeof reversed};
}
Text text_of(const Text& value) { return value; }

template <class To>
struct Expected {  // an integer
    static To of(Wide value) { return static_cast<To>(value); }
    static To of(long double value) {
        return std::isnan(value) ? To{} : clamped<To>(static_cast<Wide>(std::clamp(value, -0x1p100L, 0x1p100L)));
    }
    static To of(Currency value) { return static_cast<To>(value.ten_thousandths / 10000); }
    static To of(const Text& text) {
        const bool negative = text.starts_with('-');
        const auto magnitude = static_cast<Wide>(std::strtoull(text.c_str() + (negative ? 1 : 0), nullptr, 10));
        return clamped<To>(negative ? -magnitude : magnitude);
    }
};
template <>
struct Expected<bool> {
    static bool of(Wide value) { return value != 0; }
    static bool of(long double value) { return value != 0; }
    static bool of(Currency value) { return value.ten_thousandths != 0; }
    static bool of(const Text& text) { return text == "TRUE" || std::strtod(text.c_str(), nullptr) != 0; }
};
template <std::floating_point To>
struct Expected<To> {
    static To of(auto value) { return static_cast<To>(value); }
    static To of(Currency value) { return of(text_of(value)); }
    static To of(const Text& text) {
        if constexpr (std::same_as<To, float>) return std::strtof(text.c_str(), nullptr);
        return static_cast<To>(std::strtod(text.c_str(), nullptr));
    }
};
template <>
struct Expected<Color> {
    static Color of(const auto& value) { return {Expected<std::uint32_t>::of(value) & 0xFFFFFF}; }
};
template <>
struct Expected<Currency> {
    static Currency of(Wide value) { return {clamped<std::int64_t>(value * 10000)}; }
    static Currency of(long double value) {
        if (std::isnan(value)) return {0};
        return exact_currency(printed("%.100Lf", std::clamp(value, -1e25L, 1e25L)));
    }
    static Currency of(Currency value) { return value; }
    static Currency of(const Text& text) { return exact_currency(text); }
};
template <>
struct Expected<void*> {
    static void* of(const auto& value) { return reinterpret_cast<void*>(Expected<std::uintptr_t>::of(value)); }
};

template <class To, class From>
To expected(const From& value) {
    if constexpr (std::is_same_v<To, String>) {
        return String(text_of(value));
    } else {
        return Expected<To>::of(source(value));
    }
}

// ---- Values at every edge.

// clang-format off
constexpr double kEdges[] = {
    0.0, 1.0, 1.5, 2.5, 0.99999, 0.00005, 0.00015, 123456.78905, 16777217.0, 2147483647.0, 2147483648.0,
    4294967295.5, 9007199254740993.0, 922337203685477.5807, 922337203685477.6, 1e15, 9223372036854775807.0,
    18446744073709551615.0, 1e38, 1e-40, 1e300, double{INFINITY}};
constexpr const char* kTexts[] = {
    "", "0", "-1", "7.9", "-0.5", "255", "16777216", "2147483648", "-2147483649", "4294967296",
    "9223372036854775808", "-9223372036854775809", "18446744073709551616", "922337203685477.58075", "0.00005",
    "-12.34565", "3.5 apples", "apples", "TRUE", "\xC3\xA4", "1234567890123.4567"};
// clang-format on

template <class T>
std::vector<T> values() {
    std::vector<T> values;
    for (const int shift : {0, 7, 8, 15, 16, 23, 24, 31, 32, 47, 53, 62, 63}) {
        for (const unsigned step : {0u, 1u, 2u, 5u, 9999u, 10000u, 10001u}) {
            for (std::uint64_t bits : {(std::uint64_t{1} << shift) - step, (std::uint64_t{1} << shift) + step}) {
                if (std::is_same_v<T, Color>) bits &= 0xFFFFFF;
                T value{};
                std::memcpy(&value, &bits, sizeof value);
                values.push_back(value);
            }
        }
    }
    return values;
}
template <std::floating_point T>
std::vector<T> values() {
    std::vector<T> values{std::numeric_limits<T>::quiet_NaN()};
    for (const double whole : kEdges) {
        for (const double value : {whole, -whole}) {
            values.push_back(static_cast<T>(value));
            values.push_back(std::nextafter(static_cast<T>(value), T{0}));
        }
    }
    return values;
}
template <>
std::vector<bool> values() {
    return {false, true};
}
template <>
std::vector<Text> values() {
    return {std::begin(kTexts), std::end(kTexts)};
}

// The boxing functions take the samples of texts too.
using tavrik::CFStringRefToVariant, tavrik::CStringToVariant, tavrik::PStringToVariant, tavrik::StringToVariant,
    tavrik::WStringToVariant;

Ref<Variant> StringToVariant(const Text& text) { return StringToVariant(String(std::string_view(text))); }
Ref<Variant> CStringToVariant(const Text& text) { return CStringToVariant(CString{text.c_str()}); }
Ref<Variant> PStringToVariant(const Text& text) {
    const Text bytes = static_cast<char>(text.size()) + text;
    return PStringToVariant(PString{reinterpret_cast<const unsigned char*>(bytes.data())});
}
Ref<Variant> WStringToVariant(const Text& text) {
    const WString counted = RuntimeNewWString(text);
    const Ref<Variant> boxed = WStringToVariant(counted);
    UnlockWString(counted);
    return boxed;
}
Ref<Variant> CFStringRefToVariant(const Text& text) {
    const CFStringRef counted = RuntimeNewCFString(text);
    const Ref<Variant> boxed = CFStringRefToVariant(counted);
    UnlockCFString(counted);
    return boxed;
}
Ref<Variant> StructureToVariant(const Text& bytes) {
    return tavrik::StructureToVariant("Point"_s, String(std::string_view(bytes)));
}

template <class T>
bool same(const T& a, const T& b) {
    if constexpr (std::is_floating_point_v<T>) {
        return (std::isnan(a) && std::isnan(b)) || (a == b && std::signbit(a) == std::signbit(b));
    } else {
        return a == b;
    }
}

// The toolkit's function, the class's operation and the unboxing function agree with the other means.
template <class Class, class Value, class To>
void check(Ref<Variant> (*box)(const Value&), To (*function)(Object*), To (*unbox)(Object*), const char* row) {
    for (const Value& value : values<Value>()) {
        const Ref<Variant> boxed = box(value);
        const To wanted = expected<To>(value);
        const bool agree = same(function(boxed.object()), wanted) && same(unbox(boxed.object()), wanted) &&
                           same(static_cast<Class*>(boxed.object())->template Operator_Convert<To>(), wanted);
        EXPECT_TRUE(agree) << row << " of " << text_of(value);
    }
}

template <class To, auto Via>
To same_bits(Object* object) {
    return static_cast<To>(Via(object));
}

// clang-format off
template <class T> struct SampleOf { using Type = T; };
template <> struct SampleOf<String> { using Type = Text; };
template <> struct SampleOf<CString> { using Type = Text; };
template <> struct SampleOf<PString> { using Type = Text; };
template <> struct SampleOf<WString> { using Type = Text; };
template <> struct SampleOf<CFStringRef> { using Type = Text; };
// clang-format on

TEST(Conversions, Agree_with_arithmetic_by_other_means) {
    const Balance balance;
    using namespace value_type;
    using Structure = Text;
#define TAVRIK_CHECK(From, To, function)                                                                      \
    check<_Variant##From, SampleOf<From>::Type, To>([](const auto& value) { return From##ToVariant(value); }, \
                                                    function, VariantTo##To, #From " to " #To);
#define TAVRIK_CHECK_OWN(From, To) TAVRIK_CHECK(From, To, From##ObjectTo##To)
#define TAVRIK_CHECK_SHARED(From, To, Via) TAVRIK_CHECK(From, To, (same_bits<To, From##ObjectTo##Via>))
    TAVRIK_VALUE_CONVERSIONS(TAVRIK_CHECK_OWN)
    TAVRIK_SHARED_CONVERSIONS(TAVRIK_CHECK_SHARED)
}

}  // namespace
}  // namespace tavrik::test
