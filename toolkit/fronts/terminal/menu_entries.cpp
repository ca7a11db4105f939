#include "toolkit/fronts/terminal/menu_entries.h"

#include "toolkit/fronts/terminal/captions.h"

#include <string>

namespace tavrik::front::terminal {
namespace {

bool is_shown(const MenuDescription& item) { return item.visible && !item.separator; }

void collect(const MenuDescription& menu, const std::string& path, bool enabled, std::vector<MenuEntry>& entries) {
    for (const MenuDescription& item : menu.children) {
        if (!is_shown(item) || !item.children.empty()) continue;
        entries.push_back({item.id, path, printed_caption(item.text), enabled && item.enabled, item.checked});
    }
    for (const MenuDescription& item : menu.children) {
        if (!is_shown(item) || item.children.empty()) continue;
        const std::string inside = (path.empty() ? path : path + '/') + printed_caption(item.text);
        collect(item, inside, enabled && item.enabled, entries);
    }
}

}  // namespace

std::vector<MenuEntry> menu_entries(std::span<const MenuDescription> menu_bar) {
    std::vector<MenuEntry> entries;
    for (const MenuDescription& menu : menu_bar) {
        if (is_shown(menu)) collect(menu, printed_caption(menu.text), menu.enabled, entries);
    }
    return entries;
}

std::vector<MenuEntry> entries_of_menu(const MenuDescription& menu) {
    std::vector<MenuEntry> entries;
    collect(menu, {}, true, entries);
    return entries;
}

}  // namespace tavrik::front::terminal
