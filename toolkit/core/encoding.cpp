#include "toolkit/core/encoding.h"

#include <tavrik/exception.h>
#include <tavrik/text_encoding.h>

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace tavrik::core {
namespace {

constexpr EncodingRow kUtf8Row{kEncodingUtf8, "UTF-8", "", Coding::kUtf8};

constexpr char32_t kMark = 0xFEFF;
constexpr char kLacking = '?';

std::size_t ascii_end(std::string_view bytes, std::size_t from) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    for (; bytes.size() - from >= sizeof(std::uint64_t); from += sizeof(std::uint64_t)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + from, sizeof word);
        if ((word & kHighBits) != 0) break;
    }
    while (from < bytes.size() && byte_at(bytes, from) < 0x80) ++from;
    return from;
}

enum class Order { kBig, kLittle };

template <Order Bytes>
char32_t unit16(std::string_view bytes, std::size_t at) {
    if constexpr (Bytes == Order::kBig) return byte_at(bytes, at) << 8 | byte_at(bytes, at + 1);
    return byte_at(bytes, at + 1) << 8 | byte_at(bytes, at);
}

template <Order Bytes>
FrontCharacter take_utf16(std::string_view bytes) {
    if (bytes.size() < 2) return {0, 0};
    const char32_t first = unit16<Bytes>(bytes, 0);
    if (is_low_surrogate(first)) return {kReplacement, 2};
    if (!is_high_surrogate(first)) return {first, 2};
    if (bytes.size() < 4) return {0, 0};
    const char32_t second = unit16<Bytes>(bytes, 2);
    if (!is_low_surrogate(second)) return {kReplacement, 2};
    return {from_surrogates(first, second), 4};
}

template <Order Bytes>
FrontCharacter take_utf32(std::string_view bytes) {
    if (bytes.size() < 4) return {0, 0};
    const char32_t high = unit16<Bytes>(bytes, Bytes == Order::kBig ? 0 : 2);
    const char32_t character = high << 16 | unit16<Bytes>(bytes, Bytes == Order::kBig ? 2 : 0);
    return {is_code_point(character) ? character : kReplacement, 4};
}

template <auto Take>
std::size_t take_units(std::string_view bytes, std::string& text) {
    std::size_t at = 0;
    while (at < bytes.size()) {
        const FrontCharacter taken = Take(bytes.substr(at));
        if (taken.length == 0) break;
        append_utf8(text, taken.character);
        at += taken.length;
    }
    return at;
}

// Whole runs of valid UTF-8 are copied at once.
std::size_t take_valid_utf8(std::string_view bytes, std::string& text) {
    std::size_t copied = 0;
    std::size_t at = ascii_end(bytes, 0);
    while (at < bytes.size()) {
        const FrontCharacter taken = take_utf8(bytes.substr(at));
        if (taken.length == 0) break;
        if (taken.character == kReplacement) {
            text.append(bytes, copied, at - copied).append(kReplacementText);
            copied = at + taken.length;
        }
        at = ascii_end(bytes, at + taken.length);
    }
    text.append(bytes, copied, at - copied);
    return at;
}

std::size_t take_single_bytes(Coding coding, std::string_view bytes, std::string& text) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const std::size_t end = ascii_end(bytes, at);
        text.append(bytes, at, end - at);
        at = end;
        if (at == bytes.size()) break;
        append_utf8(text, coding == Coding::kLatin1 ? char32_t{byte_at(bytes, at)} : kReplacement);
    }
    return bytes.size();
}

enum class Stop { kDone, kCut, kInvalid };

// One call of iconv. It takes off `rest` what it has converted.
Stop run_once(const Iconv& iconv, std::string_view& rest, std::string& result) {
    std::array<char, 4096> room;
    char* from = const_cast<char*>(rest.data());
    std::size_t left = rest.size();
    char* to = room.data();
    std::size_t room_left = room.size();
    const std::size_t converted = ::iconv(iconv.get(), &from, &left, &to, &room_left);
    const int error = errno;
    result.append(room.data(), room.size() - room_left);
    rest.remove_prefix(rest.size() - left);
    if (converted != static_cast<std::size_t>(-1) || error == E2BIG) return Stop::kDone;
    return error == EINVAL ? Stop::kCut : Stop::kInvalid;
}

// Converts `rest` as far as iconv goes, and leaves what it hasn't taken. A failure costs iconv time for all that it was
// given, so that it gets little at first, and more with each success.
Stop run(const Iconv& iconv, std::string_view& rest, std::string& result) {
    constexpr std::size_t kMost = 1024;
    std::size_t most = 32;
    while (!rest.empty()) {
        std::string_view piece = rest.substr(0, most);
        const std::size_t given = piece.size();
        const Stop stop = run_once(iconv, piece, result);
        const bool was_all = given == rest.size();
        rest.remove_prefix(given - piece.size());
        if (stop == Stop::kInvalid || (stop == Stop::kCut && was_all)) return stop;
        most = stop == Stop::kCut ? most * 2 : std::min(most * 4, kMost);
    }
    return Stop::kDone;
}

// What iconv holds back, and what brings it back to its first state.
void flush(const Iconv& iconv, std::string& result) {
    std::array<char, 64> room;
    char* to = room.data();
    std::size_t room_left = room.size();
    ::iconv(iconv.get(), nullptr, nullptr, &to, &room_left);
    result.append(room.data(), room.size() - room_left);
}

// The mark, if there is one, tells the order and is no part of the text.
Coding order_by_mark(std::string_view& bytes, Coding big, Coding little, FrontCharacter if_big,
                     FrontCharacter if_little) {
    const bool is_little = if_little.character == kMark;
    if (is_little || if_big.character == kMark) bytes.remove_prefix(if_big.length);
    return is_little ? little : big;
}

void append_utf16(std::string& bytes, char32_t c, Order order) {
    if (c >= 0x10000) {
        append_utf16(bytes, 0xD800 + ((c - 0x10000) >> 10), order);
        return append_utf16(bytes, 0xDC00 + ((c - 0x10000) & 0x3FF), order);
    }
    if (order == Order::kBig) return append_bytes(bytes, {c >> 8, c});
    append_bytes(bytes, {c, c >> 8});
}

void append_utf32(std::string& bytes, char32_t c, Order order) {
    if (order == Order::kBig) return append_bytes(bytes, {0, c >> 16, c >> 8, c});
    append_bytes(bytes, {c, c >> 8, c >> 16, 0});
}

void append(std::string& bytes, char32_t c, Coding coding) {
    switch (coding) {
        case Coding::kAscii:
            bytes += c < 0x80 ? static_cast<char>(c) : kLacking;
            return;
        case Coding::kLatin1:
            if (c < 0x100) return append_bytes(bytes, {c});
            bytes += kLacking;
            return;
        case Coding::kUtf16:
        case Coding::kUtf16Big:
            return append_utf16(bytes, c, Order::kBig);
        case Coding::kUtf16Little:
            return append_utf16(bytes, c, Order::kLittle);
        case Coding::kUtf32:
        case Coding::kUtf32Big:
            return append_utf32(bytes, c, Order::kBig);
        case Coding::kUtf32Little:
            return append_utf32(bytes, c, Order::kLittle);
        case Coding::kUtf8:
        case Coding::kIconv:
            break;
    }
    append_utf8(bytes, c);
}

Iconv need(Iconv iconv, const EncodingRow& encoding) {
    if (iconv != nullptr) return iconv;
    const std::string reason = std::strerror(errno);
    RuntimeRaise("UnsupportedFormatException",
                 std::string("text in ") + encoding.internet_name + " can't be converted: " + reason);
}

}  // namespace

bool is_utf8(std::string_view bytes) {
    for (std::size_t at = ascii_end(bytes, 0); at < bytes.size();) {
        const FrontCharacter taken = take_utf8(bytes.substr(at));
        if (taken.length == 0 || taken.character == kReplacement) return false;
        at = ascii_end(bytes, at + taken.length);
    }
    return true;
}

Decoder::Decoder(const EncodingRow& encoding) : encoding_(encoding.coding), coding_(encoding.coding) {
    if (coding_ == Coding::kIconv) iconv_ = need(open_from(encoding), encoding);
}

std::size_t Decoder::take_iconv(std::string_view bytes, std::string& text) {
    std::string_view rest = bytes;
    while (run(iconv_, rest, text) == Stop::kInvalid) {
        text.append(kReplacementText);
        rest.remove_prefix(1);
    }
    return bytes.size() - rest.size();
}

std::size_t Decoder::take(std::string_view bytes, std::string& text) {
    const std::string_view all = bytes;
    switch (coding_) {
        case Coding::kIconv:
            return take_iconv(bytes, text);
        case Coding::kAscii:
        case Coding::kLatin1:
            return take_single_bytes(coding_, bytes, text);
        case Coding::kUtf8:
            return take_valid_utf8(bytes, text);
        case Coding::kUtf16Big:
            return take_units<take_utf16<Order::kBig>>(bytes, text);
        case Coding::kUtf16Little:
            return take_units<take_utf16<Order::kLittle>>(bytes, text);
        case Coding::kUtf32Big:
            return take_units<take_utf32<Order::kBig>>(bytes, text);
        case Coding::kUtf32Little:
            return take_units<take_utf32<Order::kLittle>>(bytes, text);
        case Coding::kUtf16:
            if (bytes.size() < 2) return 0;
            coding_ = order_by_mark(bytes, Coding::kUtf16Big, Coding::kUtf16Little, {unit16<Order::kBig>(bytes, 0), 2},
                                    {unit16<Order::kLittle>(bytes, 0), 2});
            break;
        case Coding::kUtf32:
            if (bytes.size() < 4) return 0;
            coding_ = order_by_mark(bytes, Coding::kUtf32Big, Coding::kUtf32Little, take_utf32<Order::kBig>(bytes),
                                    take_utf32<Order::kLittle>(bytes));
            break;
    }
    return all.size() - bytes.size() + take(bytes, text);
}

void Decoder::decode(std::string_view bytes, std::string& text) {
    if (cut_.empty()) {
        cut_.assign(bytes.substr(take(bytes, text)));
        return;
    }
    cut_.append(bytes);
    cut_.erase(0, take(cut_, text));
}

void Decoder::finish(std::string& text) {
    if (iconv_) flush(iconv_, text);
    if (!cut_.empty()) text.append(kReplacementText);
    cut_.clear();
    coding_ = encoding_;
}

Encoder::Encoder(const EncodingRow& encoding) : coding_(encoding.coding), utf8_(kUtf8Row) {
    if (coding_ == Coding::kIconv) iconv_ = need(open_to(encoding), encoding);
}

void Encoder::put_iconv(std::string& bytes) {
    std::string_view rest = valid_;
    while (run(iconv_, rest, bytes) == Stop::kInvalid) {
        std::string_view lacking(&kLacking, 1);
        run(iconv_, lacking, bytes);
        rest.remove_prefix(take_utf8(rest).length);
    }
}

void Encoder::put(std::string& bytes) {
    if (iconv_) {
        put_iconv(bytes);
    } else {
        for (std::string_view rest = valid_; !rest.empty();) {
            const FrontCharacter taken = take_utf8(rest);
            append(bytes, taken.character, coding_);
            rest.remove_prefix(taken.length);
        }
    }
    valid_.clear();
}

void Encoder::encode(std::string_view text, std::string& bytes) {
    if (coding_ == Coding::kUtf8) return utf8_.decode(text, bytes);
    utf8_.decode(text, valid_);
    put(bytes);
}

void Encoder::finish(std::string& bytes) {
    if (coding_ == Coding::kUtf8) return utf8_.finish(bytes);
    utf8_.finish(valid_);
    put(bytes);
    if (iconv_) flush(iconv_, bytes);
}

std::string decode_all(const EncodingRow& encoding, std::string_view bytes) {
    Decoder decoder(encoding);
    std::string text;
    decoder.decode(bytes, text);
    decoder.finish(text);
    return text;
}

std::string encode_all(const EncodingRow& encoding, std::string_view text) {
    Encoder encoder(encoding);
    std::string bytes;
    encoder.encode(text, bytes);
    encoder.finish(bytes);
    return bytes;
}

std::uint32_t code_of(const Object* encoding) {
    if (encoding == nullptr) return kEncodingUtf8;
    return static_cast<std::uint32_t>(static_cast<const TextEncodingObject*>(encoding)->mCode);
}

std::string utf8_of(const String& text) {
    const std::uint32_t code = text.record() == nullptr ? kEncodingUtf8 : text.record()->encoding;
    const EncodingRow* const encoding = code == kEncodingUtf8 ? &kUtf8Row : find_encoding(code);
    return decode_all(encoding == nullptr ? kUtf8Row : *encoding, text.view());
}

}  // namespace tavrik::core
