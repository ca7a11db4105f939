#include "toolkit/core/number_text.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>

// Any text gives a number of each type, and a number's own text gives the same number again.
namespace tavrik::core {
namespace {

void expect(bool holds, const char* what, std::string_view text) {
    if (holds) return;
    std::fprintf(stderr, "%s doesn't read as what was written: %.*s\n", what, static_cast<int>(text.size()),
                 text.data());
    std::abort();
}

template <class Bits, class T>
bool is_same(T a, T b) {
    return (std::isnan(a) && std::isnan(b)) || std::bit_cast<Bits>(a) == std::bit_cast<Bits>(b);
}

void check(std::string_view text) {
    const double number = read_double(text);
    const NumberText number_text(number);
    expect(is_same<std::uint64_t>(read_double(number_text.view()), number), "a Double", number_text.view());

    const float single = read_single(text);
    const NumberText single_text(single);
    expect(is_same<std::uint32_t>(read_single(single_text.view()), single), "a Single", single_text.view());

    const auto integer = read_integer<std::int64_t>(text);
    const NumberText integer_text(integer);
    expect(read_integer<std::int64_t>(integer_text.view()) == integer, "an Int64", integer_text.view());

    const Currency currency = read_currency(text);
    const NumberText currency_text(currency);
    expect(read_currency(currency_text.view()) == currency, "a Currency", currency_text.view());

    const std::uintptr_t address = read_address(text);
    const NumberText address_text = NumberText::of_address(address);
    expect(read_address(address_text.view()) == address, "a Ptr", address_text.view());

    const Color color = read_color(text);
    const NumberText color_text = NumberText::of_color(color);
    expect(read_color(color_text.view()) == color, "a Color", color_text.view());
}

}  // namespace
}  // namespace tavrik::core

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tavrik::core::check({reinterpret_cast<const char*>(data), size});
    return 0;
}
