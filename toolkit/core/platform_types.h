#pragma once

#include <tavrik/platform_types.h>
#include <tavrik/string.h>

#include <cstring>
#include <string_view>

namespace tavrik::core {

// A counted text of the platform is a string under another name.
inline StringRecord* string_of(CFStringRef text) noexcept { return reinterpret_cast<StringRecord*>(text.record); }
inline CFStringRef cf_string_of(StringRecord* string) noexcept { return {reinterpret_cast<CFStringRecord*>(string)}; }

// The text of a string is laid out as both plain forms need it: one that begins with its length, and one that ends with
// a zero byte and begins behind it.
inline constexpr char kNoText[2] = {};
inline const char* plain_text(const StringRecord* string) noexcept {
    return string == nullptr ? kNoText : string->text;
}

inline void lock(WString text) noexcept {
    if (text.record != nullptr) ++text.record->count;
}

// The bytes or units of a text; empty for nil.
inline std::string_view view(CString text) noexcept {
    return text.bytes == nullptr ? std::string_view{} : std::string_view{text.bytes, std::strlen(text.bytes)};
}
inline std::string_view view(PString text) noexcept {
    if (text.bytes == nullptr) return {};
    return {reinterpret_cast<const char*>(text.bytes) + 1, text.bytes[0]};
}
inline std::u16string_view view(WString text) noexcept {
    if (text.record == nullptr) return {};
    return {text.record->text, static_cast<std::size_t>(text.record->length)};
}

}  // namespace tavrik::core
