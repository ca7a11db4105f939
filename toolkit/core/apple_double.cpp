#include "toolkit/core/apple_double.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tavrik::core {
namespace {

constexpr std::uint32_t kMagic = 0x00051607;
constexpr std::uint32_t kVersion = 0x00020000;
constexpr std::size_t kFiller = 16;
constexpr std::size_t kCountAt = 8 + kFiller;
constexpr std::size_t kPartsAt = kCountAt + 2;
constexpr std::size_t kPartSize = 12;

// Numbers are big-endian.
std::uint32_t number_at(std::string_view bytes, std::size_t at, std::size_t size) {
    std::uint32_t number = 0;
    for (const char c : bytes.substr(at, size)) number = number << 8 | static_cast<unsigned char>(c);
    return number;
}

void append_number(std::string& bytes, std::size_t number, unsigned size) {
    while (size-- > 0) bytes += static_cast<char>(number >> (8 * size) & 0xFF);
}

}  // namespace

std::optional<AppleDouble> AppleDouble::parse(std::string_view bytes) {
    if (bytes.size() < kPartsAt) return {};
    if (number_at(bytes, 0, 4) != kMagic || number_at(bytes, 4, 4) != kVersion) return {};
    const std::size_t count = number_at(bytes, kCountAt, 2);
    if (bytes.size() < kPartsAt + count * kPartSize) return {};
    AppleDouble parsed;
    for (std::size_t at = kPartsAt; at < kPartsAt + count * kPartSize; at += kPartSize) {
        const std::size_t offset = number_at(bytes, at + 4, 4);
        const std::size_t length = number_at(bytes, at + 8, 4);
        if (offset > bytes.size() || length > bytes.size() - offset) return {};
        parsed.parts_.push_back({number_at(bytes, at, 4), std::string(bytes.substr(offset, length))});
    }
    return parsed;
}

std::string_view AppleDouble::part(std::uint32_t id) const {
    const auto found = std::ranges::find(parts_, id, &Part::id);
    return found == parts_.end() ? std::string_view{} : std::string_view(found->bytes);
}

void AppleDouble::set_part(std::uint32_t id, std::string bytes) {
    const auto found = std::ranges::find(parts_, id, &Part::id);
    if (found != parts_.end()) {
        found->bytes = std::move(bytes);
    } else {
        // The resource fork, which may grow, comes last.
        parts_.insert(parts_.begin(), {id, std::move(bytes)});
    }
}

std::string AppleDouble::bytes() const {
    std::string whole;
    append_number(whole, kMagic, 4);
    append_number(whole, kVersion, 4);
    whole.append(kFiller, '\0');
    append_number(whole, parts_.size(), 2);
    std::size_t offset = kPartsAt + parts_.size() * kPartSize;
    for (const Part& part : parts_) {
        append_number(whole, part.id, 4);
        append_number(whole, offset, 4);
        append_number(whole, part.bytes.size(), 4);
        offset += part.bytes.size();
    }
    for (const Part& part : parts_) whole += part.bytes;
    return whole;
}

}  // namespace tavrik::core
