#include "toolkit/fronts/qt/window.h"

#include "toolkit/fronts/qt/button.h"
#include "toolkit/fronts/qt/cursor.h"
#include "toolkit/fronts/qt/placement.h"
#include "toolkit/fronts/qt/text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainterPath>
#include <QScopedValueRollback>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace tavrik::front::qt {
namespace {

// Without a change for so long, the desktop is done.
constexpr int kQuietMs = 150;
constexpr int kRoundedCorner = 12;

// What kind of window a frame is.
Qt::WindowFlags kind_of(WindowFrame frame) {
    switch (frame) {
        case WindowFrame::kMovableModal:
        case WindowFrame::kModal:
            return Qt::Dialog;
        case WindowFrame::kFloating:
            return Qt::Tool;
        case WindowFrame::kGlobalFloating:
            return Qt::Tool | Qt::WindowStaysOnTopHint;
        case WindowFrame::kSheet:
            return Qt::Sheet;
        case WindowFrame::kPlain:
        case WindowFrame::kRounded:
            return Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;
        case WindowFrame::kShadowed:
            return Qt::Window | Qt::FramelessWindowHint;
        case WindowFrame::kDocument:
        case WindowFrame::kMetal:
            break;
    }
    return Qt::Window;
}

// A modal one can't be minimized: what it is modal to would stay locked.
bool is_modal(WindowFrame frame) { return frame == WindowFrame::kMovableModal || frame == WindowFrame::kModal; }

Qt::WindowFlags flags_of(const WindowDescription& window) {
    Qt::WindowFlags flags = kind_of(window.frame);
    if (flags.testFlag(Qt::FramelessWindowHint)) return flags;
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (window.frame == WindowFrame::kModal) return flags;
    flags |= Qt::WindowSystemMenuHint;
    flags.setFlag(Qt::WindowCloseButtonHint, window.close_button);
    flags.setFlag(Qt::WindowMinimizeButtonHint, window.minimize_button && !is_modal(window.frame));
    flags.setFlag(Qt::WindowMaximizeButtonHint, window.maximize_button && !is_modal(window.frame));
    return flags;
}

bool is_of_normal_size(const WindowDescription& window) {
    return !window.full_screen && window.size_state == WindowSize::kNormal;
}

Qt::WindowModality modality_of(Modality modality) {
    switch (modality) {
        case Modality::kNone:
            break;
        case Modality::kWindow:
            return Qt::WindowModal;
        case Modality::kProgram:
            return Qt::ApplicationModal;
    }
    return Qt::NonModal;
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
      content_(new Content(this, listener)),
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
    live_resize_.setSingleShot(true);
    connect(&live_resize_, &QTimer::timeout, this, &Window::end_live_resize);
    coming_back_.setSingleShot(true);
    connect(&coming_back_, &QTimer::timeout, this, &Window::come_back);
}

void Window::apply(const WindowDescription& window) {
    const QScopedValueRollback applying(applying_, true);
    const bool flags_changed = flags_of(window) != flags_of(description_);
    const bool comes_back = !is_of_normal_size(description_) && is_of_normal_size(window);
    description_ = window;
    setWindowTitle(title_of(window));
    if (flags_changed) setWindowFlags(flags_of(window));  // hides the window for a moment
    apply_modality();
    apply_owner();
    apply_looks();
    apply_menu_bar();
    // In this order: one that leaves the screen's edges gets the size that it had before, and then its own.
    apply_limits();
    apply_states();
    apply_size();
    apply_position();
    apply_visibility();
    if (comes_back) coming_back_.start(kQuietMs);
    // What filling the screen makes of it is for the desktop to say, and for the listener to hear.
    if (!fills_screen()) {
        known_ = content_on_screen();
    } else {
        QMetaObject::invokeMethod(
            this, [this] { report_changes(ResizePhase::kDone); }, Qt::QueuedConnection);
    }
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

void Window::clear_focus() {
    if (QWidget* const focused = focusWidget()) focused->clearFocus();
}

void Window::set_owner(Window* owner) {
    owner_ = owner;
    apply_owner();
}

void Window::retire() {
    listener_ = nullptr;
    live_resize_.stop();
    coming_back_.stop();
    content_->retire();
    hide();
    deleteLater();
}

bool Window::event(QEvent* event) {
    // What a shortcut chooses may have become possible, or impossible, since the menus were last looked at.
    if (event->type() == QEvent::ShortcutOverride && listener_) {
        const QKeyCombination keys = static_cast<QKeyEvent*>(event)->keyCombination();
        if (menus_.has_shortcut(QKeySequence(keys))) listener_->menus_opening();
    }
    // The height of the menu bar follows the desktop's font and style; the content keeps its size.
    if (event->type() != QEvent::LayoutRequest) return QWidget::event(event);
    const QScopedValueRollback applying(applying_, true);
    const bool handled = QWidget::event(event);
    apply_size();
    return handled;
}

void Window::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) return report_size_state();
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

    if (button) {
        event->accept();
        button->click();
        return;
    }
    // A control that has the focus has offered the key already.
    const bool is_ours = !focusWidget() || focusWidget() == this;
    if (is_ours && listener_ && listener_->key_down(to_key(*event))) return event->accept();
    QWidget::keyPressEvent(event);
}

void Window::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    report_changes(ResizePhase::kDone);
}

void Window::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (description_.frame == WindowFrame::kRounded) {
        QPainterPath outline;
        outline.addRoundedRect(rect(), kRoundedCorner, kRoundedCorner);
        setMask(outline.toFillPolygon().toPolygon());
    }
    // What comes from the desktop is a drag until it has been quiet for a moment: nothing tells its end.
    const bool by_person = event->spontaneous() && !fills_screen() && !coming_back_.isActive();
    if (by_person) live_resize_.start(kQuietMs);
    report_changes(by_person ? ResizePhase::kUnderWay : ResizePhase::kDone);
}

void Window::showEvent(QShowEvent* event) {
    content_->arrange();
    QWidget::showEvent(event);
}

void Window::apply_menu_bar() { menu_bar_->setVisible(description_.menu_bar_visible && has_visible_entry(*menu_bar_)); }

void Window::apply_limits() {
    const WindowDescription& window = description_;
    if (fills_screen()) {
        content_->setMinimumSize(0, 0);
        content_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        return;
    }
    const QSize size(within_qt(window.content.width), within_qt(window.content.height));
    content_->setMinimumSize(window.resizable ? QSize(within_qt(window.min_width), within_qt(window.min_height))
                                              : size);
    content_->setMaximumSize(window.resizable ? QSize(within_qt(window.max_width), within_qt(window.max_height))
                                              : size);
}

void Window::apply_size() {
    apply_limits();
    layout()->activate();
    if (fills_screen()) return;
    resize(within_qt(description_.content.width), within_qt(description_.content.height) + menu_bar_height());
    layout()->activate();
}

void Window::apply_looks() {
    const WindowDescription& window = description_;
    QPalette palette;
    if (window.background) palette.setColor(QPalette::Window, QColor::fromRgb(*window.background | 0xFF000000));
    content_->setPalette(window.background ? palette : QPalette());
    content_->setAutoFillBackground(window.background.has_value());
    content_->setToolTip(to_qt(window.help));
    apply_cursor(*content_, window.cursor);
    if (window.frame != WindowFrame::kRounded) clearMask();
}

// The desktop takes note of it when the window is shown.
void Window::apply_modality() {
    const Qt::WindowModality modality = modality_of(description_.modality);
    if (windowModality() == modality) return;
    hide();
    setWindowModality(modality);
}

void Window::apply_owner() {
    if (!owner_ && !windowHandle()) return;
    create();
    if (owner_) owner_->create();
    windowHandle()->setTransientParent(owner_ ? owner_->windowHandle() : nullptr);
}

void Window::apply_position() {
    if (fills_screen()) return;
    if (description_.placement == Placement::kWhereTold) {
        place_content({description_.content.left, description_.content.top});
    } else if (description_.visible && !was_shown_) {
        const QWidget* const over = owner_ ? owner_.data() : QApplication::activeWindow();
        const auto position = opening_position(description_.placement, size(), over);
        if (position) place_content(*position + QPoint(0, menu_bar_height()));
    }
}

void Window::apply_states() {
    Qt::WindowStates states = windowState();
    states.setFlag(Qt::WindowFullScreen, description_.full_screen);
    states.setFlag(Qt::WindowMinimized, description_.size_state == WindowSize::kMinimized);
    // What was maximized before it was minimized is so again.
    if (description_.size_state != WindowSize::kMinimized)
        states.setFlag(Qt::WindowMaximized, description_.size_state == WindowSize::kMaximized);
    setWindowState(states);
}

void Window::apply_visibility() {
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

bool Window::fills_screen() const {
    return description_.full_screen || description_.size_state == WindowSize::kMaximized;
}

WindowSize Window::size_state() const {
    if (isMinimized()) return WindowSize::kMinimized;
    return isMaximized() ? WindowSize::kMaximized : WindowSize::kNormal;
}

// A desktop brings back the size that the window had when it left it, which may not be the one that it is to have now.
void Window::come_back() {
    const QScopedValueRollback applying(applying_, true);
    apply_size();
    if (!fills_screen()) known_ = content_on_screen();
}

void Window::report_size_state() {
    const WindowSize now = size_state();
    if (applying_ || coming_back_.isActive() || !listener_ || now == description_.size_state) return;
    description_.size_state = now;
    {
        const QScopedValueRollback applying(applying_, true);
        apply_limits();
    }
    const QPointer<Window> self(this);
    listener_->size_state_changed(now);
    if (self) report_changes(ResizePhase::kDone);
}

void Window::report_changes(ResizePhase phase) {
    if (applying_ || coming_back_.isActive() || !listener_) return;
    const Rect before = known_;
    const Rect now = known_ = content_on_screen();
    if (!fills_screen()) description_.content = now;

    const QPointer<Window> self(this);
    if (now.left != before.left || now.top != before.top) listener_->moved(now.left, now.top);
    if (!self || !listener_) return;
    if (now.width != before.width || now.height != before.height) listener_->resized(now.width, now.height, phase);
}

void Window::end_live_resize() {
    if (listener_) listener_->resized(known_.width, known_.height, ResizePhase::kDone);
}

}  // namespace tavrik::front::qt
