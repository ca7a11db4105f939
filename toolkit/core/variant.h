#pragma once

#include "toolkit/core/class_state.h"

#include <tavrik/variant.h>

#include <cstdint>
#include <string_view>

namespace tavrik::core {

// kNone for nil, and for an object that is no value object.
inline ValueKind kind_of(const Object* variant) noexcept {
    return variant == nullptr ? ValueKind::kNone : state_of(variant->record).value_kind;
}

// "Int32"; empty for none.
std::string_view kind_name(ValueKind kind) noexcept;

// Where a value object of a kind holds its value.
template <ValueKind Kind>
inline constexpr auto held = nullptr;
// clang-format off
template <> inline constexpr auto held<ValueKind::kBoolean> = &ValueObject::boolean;
template <> inline constexpr auto held<ValueKind::kInt32> = &ValueObject::int32;
template <> inline constexpr auto held<ValueKind::kUInt32> = &ValueObject::uint32;
template <> inline constexpr auto held<ValueKind::kInt64> = &ValueObject::int64;
template <> inline constexpr auto held<ValueKind::kUInt64> = &ValueObject::uint64;
template <> inline constexpr auto held<ValueKind::kSingle> = &ValueObject::float32;
template <> inline constexpr auto held<ValueKind::kDouble> = &ValueObject::float64;
template <> inline constexpr auto held<ValueKind::kCurrency> = &ValueObject::currency;
template <> inline constexpr auto held<ValueKind::kColor> = &ValueObject::color;
template <> inline constexpr auto held<ValueKind::kString> = &ValueObject::string;
template <> inline constexpr auto held<ValueKind::kCString> = &ValueObject::c_string;
template <> inline constexpr auto held<ValueKind::kPString> = &ValueObject::p_string;
template <> inline constexpr auto held<ValueKind::kWString> = &ValueObject::w_string;
template <> inline constexpr auto held<ValueKind::kCFStringRef> = &ValueObject::cf_string;
template <> inline constexpr auto held<ValueKind::kPtr> = &ValueObject::pointer;
template <> inline constexpr auto held<ValueKind::kOSType> = &ValueObject::os_type;
template <> inline constexpr auto held<ValueKind::kWindowPtr> = &ValueObject::window;
template <> inline constexpr auto held<ValueKind::kStructure> = &ValueObject::string;
// clang-format on

constexpr bool is_text(ValueKind kind) noexcept {
    return kind >= ValueKind::kString && kind <= ValueKind::kCFStringRef;
}

// The text of a value object that holds one, of whichever kind.
String text_of(const Object* variant);
// The name of the structure whose bytes the value object holds.
String structure_name(const Object* variant);

}  // namespace tavrik::core
