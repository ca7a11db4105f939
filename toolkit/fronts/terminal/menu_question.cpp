#include "toolkit/fronts/terminal/menu_question.h"

#include "toolkit/fronts/terminal/captions.h"
#include "toolkit/fronts/terminal/command.h"
#include "toolkit/fronts/terminal/menu_entries.h"
#include "toolkit/fronts/terminal/screen_text.h"

namespace tavrik::front::terminal {

MenuQuestion::MenuQuestion(const MenuDescription& menu) : entries_(entries_of_menu(menu)) {}

std::string MenuQuestion::text() const { return menu_text(entries_); }

std::string MenuQuestion::take(std::string line) {
    if (trimmed(line).empty()) {
        end();
        return {};
    }
    const MenuEntry* const entry = find_numbered_entry(line, entries_);
    if (entry == nullptr) return "Type the number or the name of an entry, or an empty line to choose none.\n";
    if (!entry->enabled) return entry->path() + " can't be used now.\n";
    chosen_ = entry->id;
    end();
    return {};
}

}  // namespace tavrik::front::terminal
