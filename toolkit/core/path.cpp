#include "toolkit/core/path.h"

#include <algorithm>
#include <cstddef>

namespace tavrik::core {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::string_view kFileScheme = "file://";
constexpr std::string_view kThisMachine = "localhost";
// What a shell does something with where it stands without quotes.
constexpr std::string_view kShellSigns = "|&;<>()$`\"'*?[]#!{}\n\r\\";
constexpr std::string_view kBlanks = " \t";

bool is_letter_or_digit(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }
bool is_one_of(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }
bool is_plain_in_url(char c) { return is_letter_or_digit(c) || is_one_of(c, "-._~/"); }
bool is_plain_in_shell(char c) { return is_letter_or_digit(c) || is_one_of(c, "-._/+,:@%"); }

// The value of a hexadecimal digit, or -1.
int digit_value(char c) {
    if (c >= 'a' && c <= 'f') c = static_cast<char>(c - 'a' + 'A');
    const std::size_t value = kHexDigits.find(c);
    return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

// Takes the next name off a path, without its separators; empty at the end.
std::string_view take_name(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    const std::string_view name = path.substr(0, path.find('/'));
    path.remove_prefix(name.size());
    return name;
}

void append_name(std::string& path, std::string_view name) {
    if (!path.empty() && path.back() != '/') path += '/';
    path += name;
}

// Takes what stands between quotes, behind the opening one, and the closing one. False if that one is missing.
bool take_quoted(std::string_view& line, char quote, std::string& word) {
    while (!line.empty()) {
        char c = line.front();
        line.remove_prefix(1);
        if (c == quote) return true;
        if (quote == '"') {
            if (c == '$' || c == '`') return false;
            if (c == '\\' && !line.empty() && is_one_of(line.front(), "\"\\$`")) {
                c = line.front();
                line.remove_prefix(1);
            }
        }
        word += c;
    }
    return false;
}

}  // namespace

bool is_entry_name(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
           name.find('\0') == std::string_view::npos;
}

std::string join(std::string_view folder, std::string_view name) {
    std::string path;
    path.reserve(folder.size() + 1 + name.size());
    path = folder;
    append_name(path, name);
    return path;
}

std::string_view name_of(std::string_view path) {
    if (path == "/") return path;
    return path.substr(path.rfind('/') + 1);
}

std::string_view folder_of(std::string_view path) {
    const std::size_t separator = path.rfind('/');
    if (separator == std::string_view::npos) return {};
    return path.substr(0, std::max<std::size_t>(separator, 1));
}

std::string absolute(std::string_view path, std::string_view folder) {
    std::string result = path.starts_with('/') ? "/" : std::string(folder);
    for (std::string_view name = take_name(path); !name.empty(); name = take_name(path)) {
        if (name != ".") append_name(result, name);
    }
    return result;
}

std::string relative_to(std::string_view folder, std::string_view path) {
    std::string_view from = folder;
    std::string_view to = path;
    std::string_view to_rest = to;
    std::string_view from_name = take_name(from);
    std::string_view to_name = take_name(to);
    while (!from_name.empty() && from_name == to_name) {
        to_rest = to;
        from_name = take_name(from);
        to_name = take_name(to);
    }
    std::string result;
    for (; !from_name.empty(); from_name = take_name(from)) append_name(result, "..");
    for (std::string_view name = take_name(to_rest); !name.empty(); name = take_name(to_rest)) {
        append_name(result, name);
    }
    return result.empty() ? "." : result;
}

std::string percent_escaped(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        if (is_plain_in_url(c)) {
            text += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        text += '%';
        text += kHexDigits[byte >> 4];
        text += kHexDigits[byte & 15];
    }
    return text;
}

std::optional<std::string> percent_unescaped(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            bytes += text[i];
            continue;
        }
        if (text.size() - i < 3) return {};
        const int high = digit_value(text[i + 1]);
        const int low = digit_value(text[i + 2]);
        if (high < 0 || low < 0) return {};
        bytes += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return bytes;
}

std::string url_of(std::string_view path) { return std::string(kFileScheme) + percent_escaped(path); }

std::optional<std::string> path_of_url(std::string_view url) {
    if (!url.starts_with(kFileScheme)) return {};
    url.remove_prefix(kFileScheme.size());
    if (url.starts_with(kThisMachine)) url.remove_prefix(kThisMachine.size());
    // A question mark and a number sign would begin what is no part of the path.
    if (!url.starts_with('/') || url.find_first_of("?#") != std::string_view::npos) return {};
    return percent_unescaped(url);
}

std::string shell_quoted(std::string_view bytes) {
    if (!bytes.empty() && std::ranges::all_of(bytes, is_plain_in_shell)) return std::string(bytes);
    std::string word = "'";
    for (const char c : bytes) {
        if (c == '\'') {
            word += "'\\''";
        } else {
            word += c;
        }
    }
    return word += '\'';
}

std::optional<ShellWord> take_shell_word(std::string_view& line, bool& malformed) {
    malformed = false;
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty()) return {};
    ShellWord word;
    word.starts_at_home = line.front() == '~' && (line.size() == 1 || is_one_of(line[1], "/ \t"));
    if (word.starts_at_home) line.remove_prefix(1);
    while (!line.empty() && !is_one_of(line.front(), kBlanks)) {
        const char c = line.front();
        line.remove_prefix(1);
        if (c == '\'' || c == '"') {
            malformed = !take_quoted(line, c, word.bytes);
        } else if (c == '\\') {
            malformed = line.empty();
            if (!malformed) {
                word.bytes += line.front();
                line.remove_prefix(1);
            }
        } else {
            malformed = is_one_of(c, kShellSigns);
            word.bytes += c;
        }
        if (malformed) return {};
    }
    return word;
}

}  // namespace tavrik::core
