#include "toolkit/fronts/terminal/command.h"

#include "toolkit/fronts/terminal/captions.h"
#include "toolkit/fronts/terminal/letter_case.h"

#include <charconv>
#include <system_error>

namespace tavrik::front::terminal {
namespace {

bool names(std::string_view words, std::string_view printed) {
    return !words.empty() && same_letters(words, trimmed(printed));
}

std::optional<std::size_t> number_in(std::string_view words) {
    std::size_t number = 0;
    const auto [rest, error] = std::from_chars(words.data(), words.data() + words.size(), number);
    if (error != std::errc() || rest != words.data() + words.size()) return std::nullopt;
    return number;
}

// The first match that can be used, or else the first match, so that a person is told why nothing happens.
template <typename Item, typename Matches>
const Item* best_match(std::span<const Item> items, Matches matches) {
    const Item* first = nullptr;
    for (const Item& item : items) {
        if (!matches(item)) continue;
        if (item.enabled) return &item;
        if (first == nullptr) first = &item;
    }
    return first;
}

}  // namespace

std::optional<std::size_t> find_control(std::string_view words, std::span<const ControlView> controls) {
    words = trimmed(words);
    const auto number = number_in(words);
    if (number && *number >= 1 && *number <= controls.size()) return *number - 1;

    const ControlView* control =
        best_match(controls, [&](const ControlView& each) { return names(words, each.caption); });
    if (control == nullptr) return std::nullopt;
    return static_cast<std::size_t>(control - controls.data());
}

std::string_view behind_menu(std::string_view words) {
    constexpr std::string_view kMenu = "menu";
    words = trimmed(words);
    const std::size_t end = words.find(' ');
    if (end == std::string_view::npos || !same_letters(words.substr(0, end), kMenu)) return {};
    return trimmed(words.substr(end));
}

const MenuEntry* find_entry(std::string_view words, std::span<const MenuEntry> entries) {
    words = trimmed(words);
    return best_match(entries, [&](const MenuEntry& each) { return names(words, each.path()); });
}

const MenuEntry* find_numbered_entry(std::string_view words, std::span<const MenuEntry> entries) {
    const auto number = number_in(trimmed(words));
    if (number && *number >= 1 && *number <= entries.size()) return &entries[*number - 1];
    return find_entry(words, entries);
}

std::optional<std::size_t> find_caption(std::string_view words, std::span<const std::string> captions) {
    words = trimmed(words);
    for (std::size_t index = 0; index < captions.size(); ++index) {
        if (names(words, printed_caption(captions[index]))) return index;
    }
    return std::nullopt;
}

}  // namespace tavrik::front::terminal
