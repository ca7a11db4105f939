#include "toolkit/fronts/qt/window.h"

#include "toolkit/fronts/qt/placement.h"
#include "toolkit/fronts/qt/text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>

namespace tavrik::front::qt {
namespace {

Qt::WindowFlags flags_of(const WindowDescription& window) {
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    flags.setFlag(Qt::WindowCloseButtonHint, window.close_button);
    flags.setFlag(Qt::WindowMinimizeButtonHint, window.minimize_button);
    flags.setFlag(Qt::WindowMaximizeButtonHint, window.maximize_button);
    return flags;
}

QString title_of(const WindowDescription& window) {
    // Qt puts its own mark for unsaved changes in place of "[*]", and "[*]" in place of two.
    QString title = window.title.empty() ? QCoreApplication::applicationName() : to_qt(window.title);
    return title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

bool has_visible_entry(const QMenuBar& bar) {
    const auto actions = bar.actions();
    return std::any_of(actions.begin(), actions.end(), [](const QAction* action) { return action->isVisible(); });
}

int within_qt(int length) { return std::clamp(length, 0, QWIDGETSIZE_MAX); }

bool is_bare(const QKeyEvent& event) { return (event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == 0; }

}  // namespace

Window::Window(WindowListener& listener)
    : QWidget(nullptr, flags_of({})),
      listener_(&listener),
      menu_bar_(new QMenuBar(this)),
      content_(new Content(this)),
      menus_(*menu_bar_, {[this] {
                              if (listener_) listener_->menus_opening();
                          },
                          [this](MenuId chosen) {
                              if (listener_) listener_->menu_chosen(chosen);
                          }}) {
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSizeConstraint(QLayout::SetMinAndMaxSize);
    rows->setMenuBar(menu_bar_);
    rows->addWidget(content_);
    menu_bar_->hide();
}

void Window::apply(const WindowDescription& window) {
    const QScopedValueRollback applying(applying_, true);
    const bool flags_changed = flags_of(window) != flags_of(description_);
    description_ = window;
    setWindowTitle(title_of(window));
    if (flags_changed) setWindowFlags(flags_of(window));  // hides the window for a moment
    apply_menu_bar();
    apply_size();
    apply_position();
    apply_visibility();
    known_ = content_on_screen();
}

void Window::apply_menus(std::span<const MenuDescription> menus) {
    const QScopedValueRollback applying(applying_, true);
    menus_.apply(menus);
    apply_menu_bar();
    apply_size();
    known_ = content_on_screen();
}

void Window::bring_to_front() {
    if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void Window::retire() {
    listener_ = nullptr;
    content_->retire();
    hide();
    deleteLater();
}

bool Window::event(QEvent* event) {
    // The height of the menu bar follows the desktop's font and style; the content keeps its size.
    if (event->type() != QEvent::LayoutRequest) return QWidget::event(event);
    const QScopedValueRollback applying(applying_, true);
    const bool handled = QWidget::event(event);
    apply_size();
    return handled;
}

void Window::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && listener_) listener_->activated(isActiveWindow());
}

void Window::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (listener_) listener_->close_requested();
}

void Window::keyPressEvent(QKeyEvent* event) {
    const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    Button* button = nullptr;
    if (is_return && is_bare(*event)) button = content_->default_button();
    if (event->matches(QKeySequence::Cancel)) button = content_->cancel_button();

    if (!button) return QWidget::keyPressEvent(event);
    event->accept();
    button->click();
}

void Window::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    report_changes();
}

void Window::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    report_changes();
}

void Window::showEvent(QShowEvent* event) {
    content_->arrange();
    QWidget::showEvent(event);
}

void Window::apply_menu_bar() { menu_bar_->setVisible(description_.menu_bar_visible && has_visible_entry(*menu_bar_)); }

void Window::apply_size() {
    const WindowDescription& window = description_;
    if (window.full_screen) {
        content_->setMinimumSize(0, 0);
        content_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        layout()->activate();
        return;
    }

    const QSize size(within_qt(window.content.width), within_qt(window.content.height));
    content_->setMinimumSize(window.resizable ? QSize(within_qt(window.min_width), within_qt(window.min_height))
                                              : size);
    content_->setMaximumSize(window.resizable ? QSize(within_qt(window.max_width), within_qt(window.max_height))
                                              : size);
    layout()->activate();
    resize(size.width(), size.height() + menu_bar_height());
    layout()->activate();
}

void Window::apply_position() {
    if (description_.full_screen) return;
    if (description_.placement == Placement::kWhereTold) {
        place_content({description_.content.left, description_.content.top});
    } else if (description_.visible && !was_shown_) {
        const auto position = opening_position(description_.placement, size(), QApplication::activeWindow());
        if (position) place_content(*position + QPoint(0, menu_bar_height()));
    }
}

void Window::apply_visibility() {
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, description_.full_screen));
    was_shown_ = was_shown_ || description_.visible;
    setVisible(description_.visible);
}

void Window::place_content(QPoint position) {
    const QPoint top_left = position - QPoint(0, menu_bar_height());
    if (geometry().topLeft() == top_left && testAttribute(Qt::WA_Moved)) return;
    setGeometry(QRect(top_left, size()));
}

int Window::menu_bar_height() const {
    if (menu_bar_->isHidden() || menu_bar_->isNativeMenuBar()) return 0;
    return menu_bar_->heightForWidth(width());
}

Rect Window::content_on_screen() const {
    const QPoint position = content_->mapToGlobal(QPoint());
    return {position.x(), position.y(), content_->width(), content_->height()};
}

void Window::report_changes() {
    if (applying_ || !listener_) return;
    const Rect before = known_;
    const Rect now = known_ = content_on_screen();
    if (!description_.full_screen) description_.content = now;

    const QPointer<Window> self(this);
    if (now.left != before.left || now.top != before.top) listener_->moved(now.left, now.top);
    if (!self || !listener_) return;
    if (now.width != before.width || now.height != before.height) listener_->resized(now.width, now.height);
}

}  // namespace tavrik::front::qt
