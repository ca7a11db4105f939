#include "toolkit/fronts/qt/menu_tree.h"

#include "toolkit/fronts/qt/shortcut.h"
#include "toolkit/fronts/qt/text.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <utility>

namespace tavrik::front::qt {
namespace {

QAction::MenuRole role_of(const MenuDescription& entry) {
    switch (entry.role) {
        case MenuRole::kPlain:
            return QAction::NoRole;
        case MenuRole::kQuit:
            return QAction::QuitRole;
        case MenuRole::kPreferences:
            return QAction::PreferencesRole;
        case MenuRole::kAbout:
            return QAction::AboutRole;
    }
    return QAction::NoRole;
}

// An entry of the bar opens a menu even where that is empty: it may be filled when it opens.
bool is_menu(const MenuDescription& wanted, bool top_level) {
    return !wanted.separator && (top_level || !wanted.children.empty());
}

bool any_has_help(std::span<const MenuDescription> entries) {
    return std::any_of(entries.begin(), entries.end(), [](const auto& entry) { return !entry.help.empty(); });
}

QFont font_of(const MenuDescription& entry) {
    QFont font;
    if (!entry.bold && !entry.italic && !entry.underline) return font;
    font = QApplication::font("QMenu");
    font.setBold(entry.bold);
    font.setItalic(entry.italic);
    font.setUnderline(entry.underline);
    return font;
}

}  // namespace

MenuTree::MenuTree(QWidget& root, Reports reports)
    : root_(root), root_is_bar_(qobject_cast<QMenuBar*>(&root) != nullptr), reports_(std::move(reports)) {}

void MenuTree::apply(std::span<const MenuDescription> menus) {
    if (auto* const menu = qobject_cast<QMenu*>(&root_)) menu->setToolTipsVisible(any_has_help(menus));
    sync(root_, entries_, menus);
}

bool MenuTree::has_shortcut(const std::vector<Entry>& entries, const QKeySequence& keys) {
    return std::any_of(entries.begin(), entries.end(), [&](const Entry& entry) {
        if (entry.menu) return has_shortcut(entry.children, keys);
        return entry.action && entry.action->shortcut() == keys;
    });
}

bool MenuTree::fits(const Entry& entry, const MenuDescription& wanted, bool top_level) {
    return entry.action && entry.id == wanted.id && entry.separator == wanted.separator &&
           (entry.menu != nullptr) == is_menu(wanted, top_level);
}

void MenuTree::sync(QWidget& parent, std::vector<Entry>& entries, std::span<const MenuDescription> wanted) {
    const bool same = std::equal(entries.begin(), entries.end(), wanted.begin(), wanted.end(),
                                 [this, &parent](const Entry& entry, const auto& description) {
                                     return fits(entry, description, is_bar(parent));
                                 });
    if (!same) rebuild(parent, entries, wanted);
    for (std::size_t i = 0; i < entries.size(); ++i) update(entries[i], wanted[i]);
}

void MenuTree::rebuild(QWidget& parent, std::vector<Entry>& entries, std::span<const MenuDescription> wanted) {
    std::vector<Entry> before = std::exchange(entries, {});
    for (const MenuDescription& description : wanted) {
        const auto kept = std::find_if(before.begin(), before.end(),
                                       [&](const Entry& entry) { return fits(entry, description, is_bar(parent)); });
        entries.push_back(kept == before.end() ? make(parent, description) : std::exchange(*kept, {}));
    }

    for (QAction* const action : parent.actions()) parent.removeAction(action);
    for (const Entry& entry : entries) parent.addAction(entry.action);
    // Later, for one of them may be what is being chosen or opened.
    for (const Entry& entry : before) {
        if (entry.menu) {
            entry.menu->deleteLater();
        } else if (entry.action) {
            entry.action->deleteLater();
        }
    }
}

MenuTree::Entry MenuTree::make(QWidget& parent, const MenuDescription& wanted) {
    return is_menu(wanted, is_bar(parent)) ? make_menu(parent, wanted) : make_action(parent, wanted);
}

MenuTree::Entry MenuTree::make_menu(QWidget& parent, const MenuDescription& wanted) {
    auto* const menu = new QMenu(&parent);
    if (is_bar(parent)) QObject::connect(menu, &QMenu::aboutToShow, &root_, reports_.opening);
    return {wanted.id, false, menu->menuAction(), menu, {}};
}

MenuTree::Entry MenuTree::make_action(QWidget& parent, const MenuDescription& wanted) {
    auto* const action = new QAction(&parent);
    action->setSeparator(wanted.separator);
    QObject::connect(action, &QAction::triggered, &root_, [this, action, id = wanted.id] {
        // Qt toggles what is checked; whether it stays so is not for Qt to say.
        action->setChecked(action->isCheckable());
        reports_.chosen(id);
    });
    return {wanted.id, wanted.separator, action, nullptr, {}};
}

void MenuTree::update(Entry& entry, const MenuDescription& wanted) {
    QAction& action = *entry.action;
    action.setVisible(wanted.visible);
    if (entry.separator) return;

    action.setText(to_qt(wanted.text));
    action.setEnabled(wanted.enabled);
    action.setMenuRole(role_of(wanted));
    action.setFont(font_of(wanted));
    action.setStatusTip(to_qt(wanted.help));
    action.setToolTip(as_plain_tool_tip(to_qt(wanted.help)));
    if (entry.menu) {
        entry.menu->setToolTipsVisible(any_has_help(wanted.children));
        sync(*entry.menu, entry.children, wanted.children);
        return;
    }
    action.setCheckable(wanted.checked);
    action.setChecked(wanted.checked);
    action.setShortcut(to_shortcut(wanted.shortcut));
}

}  // namespace tavrik::front::qt
