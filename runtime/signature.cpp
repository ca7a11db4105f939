#include "runtime/signature.h"

namespace tavrik {
namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// The length of "<name>" at the front, or 0.
std::size_t name_length(std::string_view text) {
    if (!text.starts_with('<')) return 0;
    const std::size_t end = text.find_first_of("<>%", 1);
    return end == std::string_view::npos || end == 1 || text[end] != '>' ? 0 : end + 1;
}

bool is_width(char letter, char width) {
    const std::string_view widths = letter == 'f' ? "48" : "1248";
    return widths.find(width) != std::string_view::npos;
}

// The length of a code that is neither an array nor by reference, or 0.
std::size_t simple_length(std::string_view text) {
    if (text.empty()) return 0;
    switch (text.front()) {
        case 'b':
        case 's':
        case 'v':
        case 'p':
        case 'c':
        case 'e':
            return 1;
        case 'o':
        case 't':
        case '?': {
            const std::size_t name = name_length(text.substr(1));
            return name == 0 ? 0 : 1 + name;
        }
        case 'i':
        case 'u':
        case 'f':
            if (text.size() < 2 || !is_width(text[0], text[1])) return 0;
            // A name behind it makes it an enumeration.
            return text.starts_with("i4") ? 2 + name_length(text.substr(2)) : 2;
        default:
            return 0;
    }
}

std::size_t prefix_length(std::string_view text, ByReference by_reference) {
    std::size_t at = by_reference == ByReference::kAllowed && text.starts_with('&') ? 1 : 0;
    while (at < text.size() && text[at] == 'A') {
        std::size_t digits = at + 1;
        while (digits < text.size() && is_digit(text[digits])) ++digits;
        if (digits == at + 1) return std::string_view::npos;
        at = digits;
    }
    return at;
}

}  // namespace

std::optional<std::string_view> take_type_code(std::string_view& rest, ByReference by_reference) {
    const std::size_t prefix = prefix_length(rest, by_reference);
    if (prefix == std::string_view::npos) return std::nullopt;
    const std::size_t length = simple_length(rest.substr(prefix));
    if (length == 0) return std::nullopt;
    const std::string_view code = rest.substr(0, prefix + length);
    rest.remove_prefix(code.size());
    return code;
}

std::optional<Signature> split_signature(std::string_view text) {
    if (!text.starts_with('%')) return std::nullopt;
    const std::size_t second = text.find('%', 1);
    if (second == std::string_view::npos) return std::nullopt;

    Signature signature;
    std::string_view result = text.substr(1, second - 1);
    if (!result.empty()) {
        const auto code = take_type_code(result, ByReference::kNotAllowed);
        if (!code || !result.empty()) return std::nullopt;
        signature.result = *code;
    }
    std::string_view rest = text.substr(second + 1);
    while (!rest.empty()) {
        const auto code = take_type_code(rest, ByReference::kAllowed);
        if (!code) return std::nullopt;
        signature.parameters.push_back(*code);
    }
    return signature;
}

}  // namespace tavrik
