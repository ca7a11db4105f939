#pragma once

#include "toolkit/front/descriptions.h"

#include <QKeySequence>
#include <QWidget>

#include <functional>
#include <span>
#include <vector>

class QAction;
class QMenu;

namespace tavrik::front::qt {

// The menus of a menu bar, or the entries of one menu. Entries that stay the same in kind are kept and updated, so the
// menus can change while one of them is about to open or has just been chosen from.
class MenuTree {
public:
    struct Reports {
        std::function<void()> opening;
        std::function<void(MenuId)> chosen;
    };

    // `root` is a QMenuBar or a QMenu.
    MenuTree(QWidget& root, Reports reports);

    void apply(std::span<const MenuDescription> menus);
    // Whether an entry, enabled or not, has this shortcut.
    bool has_shortcut(const QKeySequence& keys) const { return has_shortcut(entries_, keys); }

private:
    // Qt's tree owns the action and the menu.
    struct Entry {
        MenuId id = 0;
        bool separator = false;
        QAction* action = nullptr;
        QMenu* menu = nullptr;
        std::vector<Entry> children;
    };

    static bool fits(const Entry& entry, const MenuDescription& wanted, bool top_level);

    void sync(QWidget& parent, std::vector<Entry>& entries, std::span<const MenuDescription> wanted);
    void rebuild(QWidget& parent, std::vector<Entry>& entries, std::span<const MenuDescription> wanted);
    Entry make(QWidget& parent, const MenuDescription& wanted);
    Entry make_menu(QWidget& parent, const MenuDescription& wanted);
    Entry make_action(QWidget& parent, const MenuDescription& wanted);
    void update(Entry& entry, const MenuDescription& wanted);
    static bool has_shortcut(const std::vector<Entry>& entries, const QKeySequence& keys);
    bool is_bar(const QWidget& parent) const { return root_is_bar_ && &parent == &root_; }

    QWidget& root_;
    bool root_is_bar_;
    Reports reports_;
    std::vector<Entry> entries_;
};

}  // namespace tavrik::front::qt
