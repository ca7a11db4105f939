#include "toolkit/fronts/qt/input_reports.h"

#include "toolkit/front/keys.h"
#include "toolkit/fronts/qt/text.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <array>

namespace tavrik::front::qt {
namespace {

struct NamedKey {
    int key;
    char32_t character;
};
constexpr std::array kNamedKeys{
    NamedKey{Qt::Key_Home, kHomeKey},     NamedKey{Qt::Key_Enter, kKeypadEnterKey},
    NamedKey{Qt::Key_End, kEndKey},       NamedKey{Qt::Key_Insert, kInsertKey},
    NamedKey{Qt::Key_Help, kInsertKey},   NamedKey{Qt::Key_Backspace, kBackspaceKey},
    NamedKey{Qt::Key_Tab, kTabKey},       NamedKey{Qt::Key_Backtab, kTabKey},
    NamedKey{Qt::Key_PageUp, kPageUpKey}, NamedKey{Qt::Key_PageDown, kPageDownKey},
    NamedKey{Qt::Key_Return, kReturnKey}, NamedKey{Qt::Key_Escape, kEscapeKey},
    NamedKey{Qt::Key_Left, kLeftKey},     NamedKey{Qt::Key_Right, kRightKey},
    NamedKey{Qt::Key_Up, kUpKey},         NamedKey{Qt::Key_Down, kDownKey},
    NamedKey{Qt::Key_Delete, kDeleteKey},
};

QString text_of(const QKeyEvent& event) {
    for (const auto& [key, character] : kNamedKeys) {
        if (event.key() == key) return QString::fromUcs4(&character, 1);
    }
    if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35) {
        const char32_t character = kFirstFunctionKey + static_cast<char32_t>(event.key() - Qt::Key_F1);
        return QString::fromUcs4(&character, 1);
    }
    return event.text();
}

bool is_tab(const QKeyEvent& event) { return event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab; }

Point to_point(QPointF position) {
    const QPoint pixel = position.toPoint();
    return {pixel.x(), pixel.y()};
}

MouseButton to_button(Qt::MouseButton button) {
    if (button == Qt::RightButton) return MouseButton::kSecondary;
    return button == Qt::LeftButton ? MouseButton::kPrimary : MouseButton::kMiddle;
}

// Desktops tell an eighth of a degree, and turn a wheel by 15 degrees; a notch scrolls three lines.
int to_lines(int eighths) { return -eighths * 3 / 120; }

}  // namespace

Key to_key(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    const int modifiers = (held.testFlag(Qt::ShiftModifier) ? 1 : 0) | (held.testFlag(Qt::ControlModifier) ? 2 : 0) |
                          (held.testFlag(Qt::AltModifier) ? 4 : 0) | (held.testFlag(Qt::MetaModifier) ? 8 : 0);
    return {from_qt(text_of(event)), static_cast<int>(event.nativeScanCode()), modifiers};
}

bool InputReports::report(QEvent& event) {
    if (!listener_ || !widget_.isEnabled()) return false;
    switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return report_press(static_cast<QMouseEvent&>(event));
        case QEvent::MouseMove:
            return report_move(static_cast<QMouseEvent&>(event));
        case QEvent::MouseButtonRelease:
            return report_release(static_cast<QMouseEvent&>(event));
        case QEvent::Wheel:
            return report_wheel(static_cast<QWheelEvent&>(event));
        case QEvent::KeyPress:
            return report_key(static_cast<QKeyEvent&>(event));
        case QEvent::ContextMenu:
            return report_menu(static_cast<QContextMenuEvent&>(event));
        default:
            return false;
    }
}

bool InputReports::report_press(QMouseEvent& event) {
    const QPointer<QWidget> alive(&widget_);
    const bool kept = keeps_presses;
    const bool taken = listener_->mouse_down(to_point(event.position()), to_button(event.button()));
    if (!alive) return true;
    taken_ = taken;
    return taken || kept;
}

bool InputReports::report_move(QMouseEvent& event) {
    if (!taken_) return false;
    listener_->mouse_dragged(to_point(event.position()));
    return true;
}

bool InputReports::report_release(QMouseEvent& event) {
    if (!taken_) return false;
    taken_ = false;
    listener_->mouse_up(to_point(event.position()));
    return true;
}

bool InputReports::report_wheel(QWheelEvent& event) {
    const QPoint turned = event.angleDelta();
    return listener_->mouse_wheel(to_point(event.position()), to_lines(turned.x()), to_lines(turned.y()));
}

bool InputReports::report_key(QKeyEvent& event) {
    if (is_tab(event) && !tells_tabs) return false;
    const Key key = to_key(event);
    return !key.text.empty() && listener_->key_down(key);
}

bool InputReports::report_menu(QContextMenuEvent& event) {
    // A press that was taken over asks for no menu.
    return taken_ || listener_->menu_requested(to_point(event.pos()));
}

}  // namespace tavrik::front::qt
