#include "toolkit/core/platform_types.h"

#include "toolkit/core/unicode.h"

#include <tavrik/exception.h>

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

namespace tavrik {

WString RuntimeNewWString(std::string_view utf8) {
    // The record has room for the zero unit.
    const std::size_t length = core::count_utf16(utf8);
    const bool fits = length <= std::numeric_limits<std::int32_t>::max();
    void* const block = fits ? std::malloc(sizeof(WStringRecord) + length * sizeof(char16_t)) : nullptr;
    if (block == nullptr) RuntimeRaise("OutOfMemoryException", "no memory for a text of UTF-16 units");
    auto* const record = new (block) WStringRecord{1, static_cast<std::int32_t>(length), {}};
    char16_t* const units = reinterpret_cast<char16_t*>(static_cast<std::byte*>(block) + offsetof(WStringRecord, text));
    core::write_utf16(utf8, units);
    units[length] = u'\0';
    return {record};
}

CFStringRef RuntimeNewCFString(std::string_view utf8) {
    return core::cf_string_of(RuntimeNewString(utf8.empty() ? "" : utf8.data(), utf8.size(), kEncodingUtf8));
}

void UnlockWString(WString text) noexcept {
    if (text.record != nullptr && --text.record->count == 0) std::free(text.record);
}

void UnlockCFString(CFStringRef text) noexcept { unlock(core::string_of(text)); }

void SwapWStringLocks(WString new_text, WString old_text) noexcept {
    core::lock(new_text);
    UnlockWString(old_text);
}

void SwapCFStringLocks(CFStringRef new_text, CFStringRef old_text) noexcept {
    lock(core::string_of(new_text));
    unlock(core::string_of(old_text));
}

}  // namespace tavrik
