#include "toolkit/core/save_info.h"

#include "toolkit/core/path.h"

#include <utility>

namespace tavrik::core {
namespace {

// Lines: what it is and its version, then a word and a path with percent escapes in each.
constexpr std::string_view kHead = "tavrik-item 1\n";
constexpr std::string_view kRelative = "relative ";
constexpr std::string_view kAbsolute = "absolute ";

bool take(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

bool take_line(std::string_view& text, std::string_view word, std::string& path) {
    if (!take(text, word)) return false;
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return false;
    auto bytes = percent_unescaped(text.substr(0, end));
    if (!bytes || bytes->find('\0') != std::string::npos) return false;
    path = std::move(*bytes);
    text.remove_prefix(end + 1);
    return true;
}

std::string line(std::string_view word, const std::string& path) {
    return std::string(word) + percent_escaped(path) + "\n";
}

}  // namespace

std::string SaveInfo::text() const {
    const std::string absolute_line = line(kAbsolute, absolute);
    const std::string relative_line = relative.empty() ? "" : line(kRelative, relative);
    return std::string(kHead) +
           (first == First::kRelative ? relative_line + absolute_line : absolute_line + relative_line);
}

std::optional<SaveInfo> SaveInfo::parse(std::string_view text) {
    SaveInfo info;
    if (!take(text, kHead)) return {};
    info.first = text.starts_with(kAbsolute) ? First::kAbsolute : First::kRelative;
    while (!text.empty()) {
        if (!take_line(text, kRelative, info.relative) && !take_line(text, kAbsolute, info.absolute)) return {};
    }
    if (!info.absolute.starts_with('/') || info.relative.starts_with('/')) return {};
    return info;
}

}  // namespace tavrik::core
