#include "toolkit/fronts/qt/content.h"

#include "toolkit/fronts/qt/button.h"
#include "toolkit/fronts/qt/control.h"

#include <QEvent>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace tavrik::front::qt {

Content::Content(QWidget* parent, WindowListener& listener)
    : QWidget(parent), listener_(&listener), container_(*this), input_(*this, listener) {
    setMouseTracking(true);
}

void Content::arrange() {
    container_.arrange();
    order_tabs();
    focus_first_if_none();
}

Button* Content::default_button() const { return find_usable(&Button::is_default); }
Button* Content::cancel_button() const { return find_usable(&Button::is_cancel); }

void Content::retire() {
    listener_ = nullptr;
    input_.stop();
    container_.retire_all();
    tab_order_.clear();
}

void Content::report_pointer(const QWidget& widget, const QMouseEvent& event) {
    if (event.buttons() != Qt::NoButton) return;
    for (QWidget* above = widget.parentWidget(); above; above = above->parentWidget()) {
        auto* const content = dynamic_cast<Content*>(above);
        if (content) return content->report_pointer_at(content->mapFromGlobal(event.globalPosition().toPoint()));
    }
}

bool Content::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::LayoutRequest:
            arrange();
            return true;
        case QEvent::MouseMove: {
            const auto& move = static_cast<QMouseEvent&>(*event);
            if (move.buttons() == Qt::NoButton) {
                report_pointer_at(move.position().toPoint());
                return true;
            }
            break;
        }
        case QEvent::Leave:
            pointer_.reset();
            if (listener_) listener_->mouse_left();
            return true;
        case QEvent::KeyPress:  // what a control has left over has been offered to the window
            return QWidget::event(event);
        default:
            break;
    }
    return input_.report(*event) || QWidget::event(event);
}

void Content::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange) container_.arrange_later();
}

void Content::resizeEvent(QResizeEvent*) { arrange(); }

void Content::order_tabs() {
    std::vector<Control*> order;
    container_.collect_in_tab_order(order);
    if (order == tab_order_) return;
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(&order[i - 1]->widget(), &order[i]->widget());
    tab_order_ = std::move(order);
}

void Content::focus_first_if_none() {
    if (!isVisible() || window()->focusWidget()) return;
    const auto takes_keys = [](const Control* control) {
        const QWidget& widget = control->widget();
        return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
    };
    const auto first = std::find_if(tab_order_.begin(), tab_order_.end(), takes_keys);
    if (first != tab_order_.end()) (*first)->widget().setFocus(Qt::OtherFocusReason);
}

Button* Content::find_usable(bool (Button::*is_marked)() const) const {
    std::vector<Control*> controls;
    container_.collect_in_tab_order(controls);
    for (Control* const control : controls) {
        auto* const button = dynamic_cast<Button*>(control);
        if (button && (button->*is_marked)() && button->isVisible() && button->isEnabled()) return button;
    }
    return nullptr;
}

void Content::report_pointer_at(QPoint position) {
    if (!listener_ || pointer_ == position) return;
    pointer_ = position;
    listener_->mouse_moved({position.x(), position.y()});
}

}  // namespace tavrik::front::qt
