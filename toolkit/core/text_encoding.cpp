#include "toolkit/core/encoding.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/text.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>
#include <tavrik/text_encoding.h>

#include <optional>

namespace tavrik {
namespace {

std::uint32_t code_of(const Object* encoding) {
    if (encoding == nullptr) RaiseNilObjectException();
    return static_cast<std::uint32_t>(static_cast<const TextEncodingObject*>(encoding)->mCode);
}

Ref<Object> make_text_encoding(const core::EncodingRow* row) {
    if (row == nullptr) return nullptr;
    auto encoding = static_ref<TextEncodingObject>(RuntimeNewObject(core::need_class("TextEncoding")));
    encoding->mCode = static_cast<std::int32_t>(row->code);
    return encoding;
}

std::string bytes_of_number(std::uint32_t number) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const std::uint32_t rest = number >> shift;
        if (rest != 0 || shift == 0) bytes += static_cast<char>(static_cast<unsigned char>(rest));
    }
    return bytes;
}

bool is_unicode(const core::EncodingRow& encoding) { return (encoding.code & 0xFFFFU) == core::kUnicodeBase; }

// The bytes of a character, or nothing if the encoding has none of that number.
std::optional<std::string> bytes_of_character(const core::EncodingRow& encoding, std::uint32_t number) {
    if (is_unicode(encoding)) {
        if (!core::is_code_point(number)) return {};
        std::string text;
        core::append_utf8(text, number);
        return core::encode_all(encoding, text);
    }
    std::string bytes = bytes_of_number(number);
    const std::string text = core::decode_all(encoding, bytes);
    if (core::count_characters(text) != 1 || text == core::kReplacementText) return {};
    return bytes;
}

}  // namespace

Ref<Object> RuntimeTextEncodingByCode(std::uint32_t code) { return make_text_encoding(core::find_encoding(code)); }
Ref<Object> RuntimeTextEncodingByName(const String& internet_name) {
    return make_text_encoding(core::find_encoding(internet_name.view()));
}

std::int32_t textEncodingBaseGetter(Object* encoding, std::int32_t) {
    return static_cast<std::int32_t>(code_of(encoding) & 0xFFFFU);
}
std::int32_t textEncodingVariantGetter(Object* encoding, std::int32_t) {
    return static_cast<std::int32_t>(code_of(encoding) >> 16 & 0x3FFU);
}
std::int32_t textEncodingFormatGetter(Object* encoding, std::int32_t) {
    return static_cast<std::int32_t>(code_of(encoding) >> 26);
}

String textEncodingInternetName(Object* encoding, std::int32_t) {
    const core::EncodingRow* const row = core::find_encoding(code_of(encoding));
    return row == nullptr ? String() : String(std::string_view(row->internet_name));
}

String TextEncodingChr(Object* encoding, std::int32_t value) {
    const std::uint32_t code = code_of(encoding);
    const core::EncodingRow* const row = core::find_encoding(code);
    if (row == nullptr) {
        RuntimeRaise("UnsupportedFormatException", "there is no text encoding with the code " + std::to_string(code));
    }
    const auto bytes = bytes_of_character(*row, static_cast<std::uint32_t>(value));
    if (!bytes) {
        RuntimeRaise("OutOfBoundsException",
                     std::string(row->internet_name) + " has no character " + std::to_string(value));
    }
    return String::adopt(RuntimeNewString(bytes->data(), bytes->size(), code));
}

bool TextEncodingEquals(Object* encoding, Object* other) {
    return other != nullptr && code_of(encoding) == code_of(other);
}

}  // namespace tavrik
