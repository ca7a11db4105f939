#include "toolkit/fronts/qt/control.h"

#include "toolkit/fronts/qt/content.h"
#include "toolkit/fronts/qt/cursor.h"
#include "toolkit/fronts/qt/text.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPalette>

namespace tavrik::front::qt {
namespace {

void look_active_always(QWidget& widget, bool always) {
    QPalette palette = QGuiApplication::palette();
    if (always) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto which = static_cast<QPalette::ColorRole>(role);
            palette.setBrush(QPalette::Inactive, which, palette.brush(QPalette::Active, which));
        }
    }
    widget.setPalette(always ? palette : QPalette());
}

}  // namespace

Control::Control(QWidget& widget, Container& outer, ControlListener& listener)
    : widget_(widget), outer_(outer), container_(widget), listener_(&listener), input_(widget, listener) {
    outer_.add(*this);
    // What this control doesn't want of the mouse is nobody else's.
    widget_.setAttribute(Qt::WA_NoMousePropagation);
    widget_.setMouseTracking(true);
}

void Control::retire() {
    if (!reports()) return;
    stop_reporting();
    container_.retire_all();
    outer_.remove(*this);
    widget_.hide();
    widget_.deleteLater();
}

void Control::stop_reporting() {
    listener_ = nullptr;
    input_.stop();
}

void Control::apply(const ControlDescription& control) {
    const QString name = to_qt(control.name);
    if (widget_.objectName() != name) widget_.setObjectName(name);
    bounds_ = {control.bounds.left, control.bounds.top, control.bounds.width, control.bounds.height};
    tab_index_ = control.tab_index;
    shown_ = control.visible;
    if (looks_inactive_ != control.looks_inactive_with_window) {
        looks_inactive_ = control.looks_inactive_with_window;
        look_active_always(widget_, !looks_inactive_);
    }
    apply_cursor(widget_, control.cursor);
    widget_.setEnabled(control.enabled);
    // A widget of no size would look for one when it is shown.
    if (!widget_.testAttribute(Qt::WA_Resized)) widget_.setGeometry(bounds_);
    widget_.setVisible(control.visible);
}

bool Control::report(QEvent& event) {
    switch (event.type()) {
        case QEvent::FocusIn:
        case QEvent::FocusOut: {
            const QPointer<QWidget> alive(&widget_);
            report_focus(static_cast<QFocusEvent&>(event), event.type() == QEvent::FocusIn);
            return !alive;
        }
        case QEvent::LayoutRequest:
            container_.arrange();
            return false;
        case QEvent::MouseMove: {
            const QPointer<QWidget> alive(&widget_);
            Content::report_pointer(widget_, static_cast<QMouseEvent&>(event));
            return !alive || input_.report(event);
        }
        default:
            return input_.report(event);
    }
}

void Control::report_focus(const QFocusEvent& event, bool has_focus) {
    // An open menu borrows the keys; the control keeps the focus.
    if (event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason) return;
    if (listener_) listener_->focus_changed(has_focus);
}

}  // namespace tavrik::front::qt
