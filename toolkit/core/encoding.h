#pragma once

#include "toolkit/core/encoding_table.h"
#include "toolkit/core/unicode.h"

#include <tavrik/object.h>
#include <tavrik/string.h>

#include <string>
#include <string_view>

namespace tavrik::core {

// Turns the bytes of an encoding into UTF-8, piece by piece: a sequence may be cut between two pieces. What is no
// character becomes U+FFFD, and the next byte that can begin one is read as such.
class Decoder {
public:
    // Raises UnsupportedFormatException if this system can't convert it.
    explicit Decoder(const EncodingRow& encoding);

    // Appends to `text`.
    void decode(std::string_view bytes, std::string& text);
    // The bytes have ended: a sequence that is still cut becomes U+FFFD. The next piece begins another text.
    void finish(std::string& text);
    // How many bytes of a cut sequence wait for the rest of it.
    std::size_t held_back() const { return cut_.size(); }

private:
    std::size_t take(std::string_view bytes, std::string& text);
    std::size_t take_iconv(std::string_view bytes, std::string& text);

    Coding encoding_;
    Coding coding_;  // once the mark has been read, the order that it names
    Iconv iconv_;
    std::string cut_;
};

// Turns UTF-8 into the bytes of an encoding, piece by piece. A character that the encoding lacks becomes "?".
class Encoder {
public:
    // Raises UnsupportedFormatException if this system can't convert it.
    explicit Encoder(const EncodingRow& encoding);

    // Appends to `bytes`.
    void encode(std::string_view text, std::string& bytes);
    // The text has ended, as with Decoder::finish.
    void finish(std::string& bytes);

private:
    void put(std::string& bytes);
    void put_iconv(std::string& bytes);

    Coding coding_;
    Iconv iconv_;
    Decoder utf8_;
    std::string valid_;  // the piece, as UTF-8 of whole characters
};

// Whether the bytes are UTF-8 already, without U+FFFD.
bool is_utf8(std::string_view bytes);

// A whole text.
std::string decode_all(const EncodingRow& encoding, std::string_view bytes);
std::string encode_all(const EncodingRow& encoding, std::string_view text);

// The number of a TextEncoding; nil means UTF-8.
std::uint32_t code_of(const Object* encoding);

// A string's text, whatever encoding it is labelled with.
std::string utf8_of(const String& text);

}  // namespace tavrik::core
