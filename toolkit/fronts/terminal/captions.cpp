#include "toolkit/fronts/terminal/captions.h"

#include <cstddef>
#include <cstdint>

namespace tavrik::front::terminal {
namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";

bool is_control(std::uint8_t byte) { return byte < 0x20 || byte == 0x7F; }

void append_escaped(std::string& out, std::string_view introducer, std::uint8_t byte) {
    out += introducer;
    out += kHexDigits[byte >> 4];
    out += kHexDigits[byte & 0x0F];
}

void append_control(std::string& out, std::uint8_t byte) {
    switch (byte) {
        case '\n':
            out += "\\n";
            return;
        case '\r':
            out += "\\r";
            return;
        case '\t':
            out += "\\t";
            return;
        default:
            append_escaped(out, "\\x", byte);
    }
}

std::string without_mnemonics(std::string_view caption) {
    std::string plain;
    for (std::size_t index = 0; index < caption.size(); ++index) {
        const bool before_letter = index + 1 < caption.size() && caption[index + 1] != ' ';
        if (caption[index] == '&' && before_letter) ++index;
        plain += caption[index];
    }
    return plain;
}

}  // namespace

std::string printable(std::string_view text) {
    constexpr std::uint8_t c1_lead = 0xC2;  // of U+0080 to U+00BF, whose first half are control characters too
    std::string out;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const auto byte = static_cast<std::uint8_t>(text[index]);
        const auto next = static_cast<std::uint8_t>(index + 1 < text.size() ? text[index + 1] : 0);
        if (byte == c1_lead && next >= 0x80 && next <= 0x9F) {
            append_escaped(out, "\\u00", next);
            ++index;
        } else if (is_control(byte)) {
            append_control(out, byte);
        } else {
            out += text[index];
        }
    }
    return out;
}

std::string printed_caption(std::string_view caption) { return printable(without_mnemonics(caption)); }

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view white_space = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(white_space);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(white_space) - first + 1);
}

}  // namespace tavrik::front::terminal
