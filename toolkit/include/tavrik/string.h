#pragma once

#include <tavrik/api.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace tavrik {

// A counted text. `text` is the address of the text buffer: one byte with the length, capped at 255, then the bytes,
// then a zero byte.
struct StringRecord {
    std::int32_t count;
    char* text;
    std::int32_t capacity;
    std::int32_t length;
    std::uint32_t encoding;
};

inline constexpr std::uint32_t kEncodingUtf8 = 0x08000100;
inline constexpr std::uint32_t kEncodingAscii = 0x600;

// What a literal's capacity counts beyond its bytes.
inline constexpr std::int32_t kStringOverhead = 5;

// A new string with a count of 1. Raises OutOfMemoryException.
TAVRIK_API StringRecord* RuntimeNewString(const char* bytes, std::size_t length, std::uint32_t encoding);
TAVRIK_API void RuntimeDestroyString(StringRecord* string) noexcept;

// Count up, count down. nil is accepted.
TAVRIK_API void RuntimeLockString(StringRecord* string);
TAVRIK_API void RuntimeUnlockString(StringRecord* string);
// Locks `new_string`, then unlocks `old_string`. They may be the same.
TAVRIK_API void RuntimeLockUnlockStrings(StringRecord* new_string, StringRecord* old_string);

inline void lock(StringRecord* string) noexcept {
    if (string != nullptr) ++string->count;
}

inline void unlock(StringRecord* string) noexcept {
    if (string != nullptr && --string->count == 0) RuntimeDestroyString(string);
}

// The bytes of a string; empty for nil.
inline std::string_view view(const StringRecord* string) noexcept {
    return string == nullptr ? std::string_view{}
                             : std::string_view{string->text + 1, static_cast<std::size_t>(string->length)};
}

// Owns one count of a string. nil is the empty string.
class String {
public:
    constexpr String() noexcept = default;
    constexpr String(std::nullptr_t) noexcept {}
    explicit String(StringRecord* record) noexcept : record_(record) { lock(record_); }
    explicit String(std::string_view bytes)
        : record_(bytes.empty() ? nullptr : RuntimeNewString(bytes.data(), bytes.size(), kEncodingUtf8)) {}
    String(const String& other) noexcept : record_(other.record_) { lock(record_); }
    String(String&& other) noexcept : record_(std::exchange(other.record_, nullptr)) {}
    ~String() { unlock(record_); }

    String& operator=(const String& other) noexcept {
        lock(other.record_);
        unlock(std::exchange(record_, other.record_));
        return *this;
    }
    String& operator=(String&& other) noexcept {
        StringRecord* moved = std::exchange(other.record_, nullptr);
        unlock(std::exchange(record_, moved));
        return *this;
    }

    static String adopt(StringRecord* owned) noexcept {
        String string;
        string.record_ = owned;
        return string;
    }
    StringRecord* release() noexcept { return std::exchange(record_, nullptr); }

    StringRecord* record() const noexcept { return record_; }
    std::string_view view() const noexcept { return tavrik::view(record_); }
    bool empty() const noexcept { return view().empty(); }
    bool operator==(const String& other) const noexcept { return view() == other.view(); }
    bool operator==(std::string_view other) const noexcept { return view() == other; }

private:
    StringRecord* record_ = nullptr;
};

// Compares byte by byte: negative, 0 or positive. nil equals the empty string.
TAVRIK_API std::int32_t RuntimeStringCompare(const String& a, const String& b);
// The two joined.
TAVRIK_API String RuntimeAddString(const String& a, const String& b);

// Text as a template argument.
template <std::size_t Size>
struct LiteralText {
    char bytes[Size];

    static constexpr std::size_t kLength = Size - 1;
    constexpr LiteralText(const char (&text)[Size]) { std::copy_n(text, Size, bytes); }
    constexpr std::string_view view() const { return {bytes, kLength}; }
};

// A static string: it starts with a count of 1 that nobody takes away, so that it is never freed.
template <std::size_t Length, std::uint32_t Encoding = kEncodingUtf8>
struct StaticString {
    static constexpr std::int32_t kLength = static_cast<std::int32_t>(Length);

    char text[Length + 2] = {};
    StringRecord record{1, text, kLength + kStringOverhead, kLength, Encoding};
    StringRecord* handle = &record;

    constexpr explicit StaticString(std::string_view bytes) {
        text[0] = static_cast<char>(static_cast<unsigned char>(std::min<std::size_t>(Length, 255)));
        std::copy_n(bytes.data(), Length, text + 1);
    }
    StaticString(const StaticString&) = delete;
    StaticString& operator=(const StaticString&) = delete;

    // A String is one pointer to a record, and so is `handle`. The result is borrowed: it never releases its count.
    const String& string() const noexcept { return *reinterpret_cast<const String*>(&handle); }
};
static_assert(sizeof(String) == sizeof(StringRecord*));

template <LiteralText Text, std::uint32_t Encoding = kEncodingUtf8>
inline constinit StaticString<Text.kLength, Encoding> literal{Text.view()};

template <LiteralText Text>
const String& operator""_s() noexcept {
    return literal<Text>.string();
}

}  // namespace tavrik
