#pragma once

#include "runtime/class.h"

#include <tavrik/text_encoding.h>

namespace tavrik {

// Names a character encoding. One comes from encoding_named, or from the functions of the contract.
struct TextEncoding : Class<TextEncoding, TextEncodingObject> {
    static const ClassDefinition& definition();

    // The character with that number in this encoding, in its bytes.
    String Chr(std::int32_t value) { return dispatch<&TextEncoding::Chr>(this, value); }
    bool Equals(Arg<TextEncoding> other) { return dispatch<&TextEncoding::Equals>(this, other); }
    // 0 if they are equal, else 1: there is no order of encodings.
    std::int32_t Operator_Compare(Arg<TextEncoding> other) {
        return dispatch<&TextEncoding::Operator_Compare>(this, other);
    }

    std::int32_t base() { return textEncodingBaseGetter(this, 0); }
    std::int32_t variant() { return textEncodingVariantGetter(this, 0); }
    std::int32_t format() { return textEncodingFormatGetter(this, 0); }
    String internetName() { return textEncodingInternetName(this, 0); }
    std::int32_t code() { return mCode; }
};

// The encoding with that internet name, or nil: encoding_named("UTF-16LE").
inline Ref<TextEncoding> encoding_named(std::string_view internet_name) {
    return static_ref<TextEncoding>(RuntimeTextEncodingByName(String(internet_name)));
}

}  // namespace tavrik
