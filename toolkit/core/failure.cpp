#include "toolkit/core/failure.h"

#include <array>
#include <cstddef>
#include <system_error>

namespace tavrik::core {
namespace {

// The length of the well-formed UTF-8 sequence at the front, or 0.
std::size_t sequence_length(std::string_view text) {
    const auto byte = [text](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
    const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        if (lead == 0xE0 && byte(1) < 0xA0) return 0;
        if (lead == 0xED && byte(1) > 0x9F) return 0;
        return continues(1) && continues(2) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        if (lead == 0xF0 && byte(1) < 0x90) return 0;
        if (lead == 0xF4 && byte(1) > 0x8F) return 0;
        return continues(1) && continues(2) && continues(3) ? 4 : 0;
    }
    return 0;
}

void append_escape(std::string& text, unsigned char byte) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    text += "\\x";
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
}

}  // namespace

std::string readable(std::string_view name) {
    std::string text;
    while (!name.empty()) {
        const std::size_t length = sequence_length(name);
        const auto lead = static_cast<unsigned char>(name.front());
        if (length == 0 || lead < 0x20 || lead == 0x7F) {
            append_escape(text, lead);
            name.remove_prefix(1);
            continue;
        }
        text += name.substr(0, length);
        name.remove_prefix(length);
    }
    return text;
}

std::string describe_failure(std::string_view path, std::string_view not_done, std::string_view reason) {
    const std::string_view name = path.substr(path.rfind('/') + 1);
    std::string sentence = readable(name.empty() ? path : name);
    sentence.append(" could not be ").append(not_done).append(": ").append(reason);
    return sentence;
}

std::string describe_failure(std::string_view path, std::string_view not_done, int system_error) {
    return describe_failure(path, not_done, std::generic_category().message(system_error));
}

}  // namespace tavrik::core
