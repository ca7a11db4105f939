#include "toolkit/fronts/qt/pop_up.h"

#include "toolkit/fronts/qt/menu_tree.h"

#include <QCursor>

namespace tavrik::front::qt {

std::optional<MenuId> pop_up(OpenDialogs& dialogs, const MenuDescription& menu, std::optional<Point> at,
                             QWidget* over) {
    const ScopedDialog<QMenu> shown(over);
    std::optional<MenuId> chosen;
    MenuTree tree(*shown, {.opening = [] {}, .chosen = [&chosen](MenuId entry) { chosen = entry; }});
    tree.apply(menu.children);
    dialogs.run(*shown, at ? QPoint(at->left, at->top) : QCursor::pos());
    return chosen;
}

}  // namespace tavrik::front::qt
