#include "toolkit/core/string_room.h"

#include <tavrik/exception.h>
#include <tavrik/string.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

namespace tavrik {
namespace {

constexpr std::size_t kLongest = std::numeric_limits<std::int32_t>::max() - kStringOverhead;

}  // namespace

namespace core {

// The record and its text lie in one block, so that one release frees both.
StringRecord* new_string_room(std::size_t length, std::uint32_t encoding) {
    void* const block = length > kLongest ? nullptr : std::malloc(sizeof(StringRecord) + length + 2);
    if (block == nullptr) RuntimeRaise("OutOfMemoryException", "no memory for a text");
    auto* const text = static_cast<char*>(block) + sizeof(StringRecord);
    text[0] = static_cast<char>(static_cast<unsigned char>(std::min<std::size_t>(length, 255)));
    text[length + 1] = '\0';
    const auto size = static_cast<std::int32_t>(length);
    return new (block) StringRecord{1, text, size + kStringOverhead, size, encoding};
}

void shorten(StringRecord* string, std::size_t length) noexcept {
    string->text[0] = static_cast<char>(static_cast<unsigned char>(std::min<std::size_t>(length, 255)));
    string->text[length + 1] = '\0';
    string->length = static_cast<std::int32_t>(length);
    string->capacity = string->length + kStringOverhead;
}

}  // namespace core

StringRecord* RuntimeNewString(const char* bytes, std::size_t length, std::uint32_t encoding) {
    StringRecord* const record = core::new_string_room(length, encoding);
    std::memcpy(record->text + 1, bytes, length);
    return record;
}

void RuntimeDestroyString(StringRecord* string) noexcept { std::free(string); }

void RuntimeLockString(StringRecord* string) { lock(string); }
void RuntimeUnlockString(StringRecord* string) { unlock(string); }

void RuntimeLockUnlockStrings(StringRecord* new_string, StringRecord* old_string) {
    lock(new_string);
    unlock(old_string);
}

std::int32_t RuntimeStringCompare(const String& a, const String& b) {
    const int order = a.view().compare(b.view());
    return (order > 0) - (order < 0);
}

String RuntimeAddString(const String& a, const String& b) {
    if (a.empty()) return b;
    if (b.empty()) return a;
    const std::string_view front = a.view();
    const std::string_view back = b.view();
    StringRecord* const joined = core::new_string_room(front.size() + back.size(), a.record()->encoding);
    std::memcpy(joined->text + 1, front.data(), front.size());
    std::memcpy(joined->text + 1 + front.size(), back.data(), back.size());
    return String::adopt(joined);
}

}  // namespace tavrik
