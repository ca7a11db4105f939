#pragma once

#include <tavrik/string.h>
#include <tavrik/values.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// Packed property strings, made while compiling: entries of a name, a blank and a value, numbers in big-endian order.
namespace tavrik::maptool {

struct PackedEntry {
    std::string_view name;
    std::array<char, 4> number{};  // a number, or a text's length
    std::size_t number_size = 0;
    std::string_view text{};

    constexpr std::size_t size() const { return name.size() + 1 + number_size + text.size(); }
};

consteval PackedEntry packed_number(std::string_view name, std::uint32_t value, std::size_t size,
                                    std::string_view text = {}) {
    PackedEntry entry{.name = name, .number_size = size, .text = text};
    for (std::size_t i = 0; i < size; ++i) {
        entry.number[i] = static_cast<char>(static_cast<unsigned char>(value >> (8 * (size - 1 - i)) & 0xFF));
    }
    return entry;
}

consteval PackedEntry entry(std::string_view name, std::int32_t value) {
    return packed_number(name, static_cast<std::uint32_t>(value), 4);
}
consteval PackedEntry entry(std::string_view name, bool value) { return packed_number(name, value ? 1 : 0, 1); }
consteval PackedEntry entry(std::string_view name, Color value) { return packed_number(name, value.rgb, 3); }
consteval PackedEntry entry(std::string_view name, const char* value) {
    const std::string_view text = value;
    return packed_number(name, static_cast<std::uint32_t>(text.size()), 4, text);
}

template <std::size_t Count>
consteval std::size_t packed_size(const std::array<PackedEntry, Count>& entries) {
    std::size_t size = 0;
    for (const PackedEntry& one : entries) size += one.size();
    return size;
}

template <const auto& Entries>
consteval auto pack() {
    std::array<char, packed_size(Entries)> bytes{};
    auto* at = bytes.data();
    for (const PackedEntry& one : Entries) {
        for (const char byte : one.name) *at++ = byte;
        *at++ = ' ';
        for (std::size_t i = 0; i < one.number_size; ++i) *at++ = one.number[i];
        for (const char byte : one.text) *at++ = byte;
    }
    return bytes;
}

// The packed string of a table of entries, as a literal.
template <const auto& Entries>
inline constexpr auto packed_bytes = pack<Entries>();
template <const auto& Entries>
inline constinit StaticString<packed_bytes<Entries>.size()> packed{
    std::string_view(packed_bytes<Entries>.data(), packed_bytes<Entries>.size())};

}  // namespace tavrik::maptool
