#include "toolkit/core/value_keys.h"

#include <cmath>
#include <limits>
#include <string>

namespace tavrik::core {
namespace {

constexpr double kTwoTo63 = 9223372036854775808.0;
constexpr double kTwoTo64 = 18446744073709551616.0;
constexpr std::int64_t kCurrencyScale = 10'000;

constexpr KeyImage make_image(KeyFamily family, std::uint64_t low) {
    return {low, std::uint64_t{static_cast<std::uint8_t>(family)} << KeyImage::kFamilyShift};
}

KeyImage address(KeyFamily family, const void* pointer) {
    return make_image(family, std::bit_cast<std::uintptr_t>(pointer));
}

// ---- Numbers: an integer is one whatever kind holds it; what is none is a Double, if there is one that is exactly it.

KeyImage integer(std::int64_t value) { return make_image(KeyFamily::kInteger, static_cast<std::uint64_t>(value)); }

KeyImage unsigned_integer(std::uint64_t value) {
    const bool is_large = value > std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    return make_image(is_large ? KeyFamily::kLargeUnsigned : KeyFamily::kInteger, value);
}

KeyImage floating(double value) {
    if (std::isnan(value)) value = std::numeric_limits<double>::quiet_NaN();
    if (std::trunc(value) == value) {
        if (value >= -kTwoTo63 && value < kTwoTo63) return integer(static_cast<std::int64_t>(value));
        if (value >= kTwoTo63 && value < kTwoTo64) return unsigned_integer(static_cast<std::uint64_t>(value));
    }
    return make_image(KeyFamily::kFraction, std::bit_cast<std::uint64_t>(value));
}

KeyImage currency(std::int64_t ten_thousandths) {
    if (ten_thousandths % kCurrencyScale == 0) return integer(ten_thousandths / kCurrencyScale);
    // 10,000 is 625 times 16, so only a multiple of 625 is a binary fraction.
    if (ten_thousandths % 625 == 0) {
        const std::int64_t sixteenths = ten_thousandths / 625;
        const auto rounded = static_cast<double>(sixteenths);
        if (static_cast<std::int64_t>(rounded) == sixteenths) return floating(rounded / 16);
    }
    return make_image(KeyFamily::kCurrency, static_cast<std::uint64_t>(ten_thousandths));
}

// A structure's name and its bytes, so that no other name and bytes come to the same.
String named_bytes(const Object* variant) {
    const String name = structure_name(variant);
    std::string bytes = std::to_string(name.view().size()) + ' ';
    bytes.append(name.view()).append(view(static_cast<const ValueObject*>(variant)->string));
    return String(bytes);
}

}  // namespace

bool KeyImage::has_text_of(const KeyImage& other) const noexcept { return view(text()) == view(other.text()); }

KeyImage KeyValue::reference(StringRecord* text, KeyFamily family) {
    const std::uint64_t hash = hash_bytes(view(text), process_seed());
    const std::uint64_t above = make_image(family, 0).high;
    return {std::bit_cast<std::uintptr_t>(text), above | hash >> (64 - KeyImage::kFamilyShift)};
}

KeyImage KeyValue::image_of(const Object* variant) {
    if (variant == nullptr) return make_image(KeyFamily::kNil, 0);
    const auto& value = *static_cast<const ValueObject*>(variant);
    switch (kind_of(variant)) {
        case ValueKind::kBoolean:
            return make_image(KeyFamily::kBoolean, value.boolean ? 1 : 0);
        case ValueKind::kInt32:
            return integer(value.int32);
        case ValueKind::kUInt32:
            return integer(value.uint32);
        case ValueKind::kInt64:
            return integer(value.int64);
        case ValueKind::kUInt64:
            return unsigned_integer(value.uint64);
        case ValueKind::kSingle:
            return floating(value.float32);
        case ValueKind::kDouble:
            return floating(value.float64);
        case ValueKind::kCurrency:
            return currency(value.currency.ten_thousandths);
        case ValueKind::kColor:
            return make_image(KeyFamily::kColor, value.color.rgb);
        case ValueKind::kPtr:
            return address(KeyFamily::kPtr, value.pointer);
        case ValueKind::kOSType:
            return make_image(KeyFamily::kOSType, value.os_type.code);
        case ValueKind::kWindowPtr:
            return address(KeyFamily::kWindowPtr, value.window.handle);
        case ValueKind::kString:
        case ValueKind::kCString:
        case ValueKind::kPString:
        case ValueKind::kWString:
        case ValueKind::kCFStringRef:
            made_ = text_of(variant);
            return text_image(made_.record());
        case ValueKind::kStructure:
            made_ = named_bytes(variant);
            return reference(made_.record(), KeyFamily::kStructure);
        case ValueKind::kNone:
            break;
    }
    return address(KeyFamily::kObject, variant);
}

bool equal_values(const Object* a, const Object* b) { return a == b || KeyValue(a).image() == KeyValue(b).image(); }

std::uint64_t hash_value(const Object* variant) { return hash_image(KeyValue(variant).image(), process_seed()); }

}  // namespace tavrik::core
