#pragma once

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <cstdint>

namespace tavrik {

// The character encodings go by numbers, which also stand in string records:
// base | variant << 16 | format << 26. All forms of Unicode have one base and differ in the format.
constexpr std::uint32_t encoding_code(std::uint32_t base, std::uint32_t variant, std::uint32_t format) {
    return base | variant << 16 | format << 26;
}
static_assert(encoding_code(0x0100, 0, 2) == kEncodingUtf8);

// What the class layer declares for TextEncoding is this room.
struct TextEncodingObject : Object {
    std::int32_t mCode;
};

// A new TextEncoding, or nil if this system can't convert it.
TAVRIK_API Ref<Object> RuntimeTextEncodingByCode(std::uint32_t code);
// The same by an internet name, letters of any case and without regard to punctuation.
TAVRIK_API Ref<Object> RuntimeTextEncodingByName(const String& internet_name);

TAVRIK_API std::int32_t textEncodingBaseGetter(Object* encoding, std::int32_t);
TAVRIK_API std::int32_t textEncodingVariantGetter(Object* encoding, std::int32_t);
TAVRIK_API std::int32_t textEncodingFormatGetter(Object* encoding, std::int32_t);
// Empty for a code that is no encoding here.
TAVRIK_API String textEncodingInternetName(Object* encoding, std::int32_t);

// The character with that number, in the bytes of the encoding: a code point for forms of Unicode, else the bytes
// themselves, the first one the highest. Raises OutOfBoundsException if there is none.
TAVRIK_API String TextEncodingChr(Object* encoding, std::int32_t value);
// Whether the codes are the same; nil equals none.
TAVRIK_API bool TextEncodingEquals(Object* encoding, Object* other);

}  // namespace tavrik
