// The map tool's window, written on Qt alone: the least that a program with these widgets needs to start.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>

namespace {

void add_menus(QMainWindow& window) {
    QMenu* const file = window.menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), qApp, &QCoreApplication::quit);

    struct Entry {
        QString text;
        QKeySequence shortcut;
    };
    const Entry entries[] = {
        {QStringLiteral("&Undo"), Qt::CTRL | Qt::Key_Z},
        {},
        {QStringLiteral("Cu&t"), Qt::CTRL | Qt::Key_X},
        {QStringLiteral("&Copy"), Qt::CTRL | Qt::Key_C},
        {QStringLiteral("&Paste"), Qt::CTRL | Qt::Key_V},
        {QStringLiteral("&Delete"), {}},
        {},
        {QStringLiteral("Select &All"), Qt::CTRL | Qt::Key_A},
    };
    QMenu* const edit = window.menuBar()->addMenu(QStringLiteral("&Edit"));
    for (const Entry& entry : entries) {
        QAction* const action = edit->addAction(entry.text);
        action->setShortcut(entry.shortcut);
        action->setSeparator(entry.text.isEmpty());
        action->setEnabled(false);
    }
}

void add_button(QWidget* content, const QString& caption, QRect bounds, bool enabled) {
    auto* const button = new QPushButton(caption, content);
    button->setGeometry(bounds);
    button->setEnabled(enabled);
}

}  // namespace

int main(int count, char** values) {
    QApplication application(count, values);
    QMainWindow window;
    add_menus(window);
    auto* const content = new QWidget;
    content->setFixedSize(290, 119);
    add_button(content, QStringLiteral("Load Map"), {20, 14, 80, 20}, true);
    add_button(content, QStringLiteral("Null BSP"), {20, 46, 250, 20}, false);
    add_button(content, QStringLiteral("Un-do Null"), {20, 78, 250, 20}, false);
    window.setCentralWidget(content);
    window.show();
    return QApplication::exec();
}
