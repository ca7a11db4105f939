#include "toolkit/fronts/qt/canvas.h"

#include "toolkit/fronts/qt/text.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace tavrik::front::qt {

Canvas::Canvas(Container& outer, ControlListener& listener) : ControlWidget(outer, listener) {
    input().keeps_presses = true;
}

void Canvas::apply(const CanvasDescription& canvas) {
    Control::apply(canvas);
    focus_ring_ = canvas.focus_ring;
    input().tells_tabs = canvas.accepts_tabs;
    setFocusPolicy(canvas.accepts_focus ? Qt::StrongFocus : Qt::NoFocus);
    setAccessibleName(to_qt(canvas.name));
    setAccessibleDescription(to_qt(canvas.help));
    setToolTip(as_plain_tool_tip(to_qt(canvas.help)));

    QPalette colors = palette();
    colors.setColor(QPalette::Window, QColor::fromRgb(canvas.background.value_or(0)));
    setPalette(canvas.background ? colors : QPalette());
    setAutoFillBackground(canvas.erases_background && canvas.background.has_value());
}

void Canvas::paintEvent(QPaintEvent*) {
    if (!hasFocus() || !focus_ring_) return;
    QPainter painter(this);
    QStyleOptionFocusRect ring;
    ring.initFrom(this);
    ring.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &ring, &painter, this);
}

}  // namespace tavrik::front::qt
