#pragma once

#include <tavrik/api.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

// Types of the platform that members return and variants hold.
namespace tavrik {

// Text of single bytes with a zero byte behind it. A plain pointer: it owns nothing.
struct CString {
    const char* bytes;
};

// One byte with the length, then the bytes. A plain pointer: it owns nothing.
struct PString {
    const unsigned char* bytes;
};

// A counted text of UTF-16 units with a zero unit behind it. nil is the empty text.
struct WStringRecord {
    std::int32_t count;
    std::int32_t length;
    char16_t text[1];
};
struct WString {
    WStringRecord* record;
};

// A counted text of the platform; here its bytes are UTF-8, as in a string. nil is the empty text.
struct CFStringRecord;
struct CFStringRef {
    CFStringRecord* record;
};

// What the window system knows a window by.
struct WindowPtr {
    void* handle;

    bool operator==(const WindowPtr&) const = default;
};

// Four characters, the first in the highest byte.
struct OSType {
    std::uint32_t code;

    bool operator==(const OSType&) const = default;
};

// A new counted text with a count of 1, from UTF-8. Raises OutOfMemoryException.
TAVRIK_API WString RuntimeNewWString(std::string_view utf8);
TAVRIK_API CFStringRef RuntimeNewCFString(std::string_view utf8);
// Count down. nil is accepted.
TAVRIK_API void UnlockWString(WString text) noexcept;
TAVRIK_API void UnlockCFString(CFStringRef text) noexcept;
// Locks `new_text`, then unlocks `old_text`. They may be the same.
TAVRIK_API void SwapWStringLocks(WString new_text, WString old_text) noexcept;
TAVRIK_API void SwapCFStringLocks(CFStringRef new_text, CFStringRef old_text) noexcept;

}  // namespace tavrik
