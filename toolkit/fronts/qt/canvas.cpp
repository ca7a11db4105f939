#include "toolkit/fronts/qt/canvas.h"

#include "toolkit/fronts/qt/text.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace tavrik::front::qt {
namespace {

// One that takes no focus is the ground for what lies on it.
class CanvasReader final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override {
        return widget()->focusPolicy() == Qt::NoFocus ? QAccessible::Pane : QAccessible::Canvas;
    }
};

}  // namespace

QAccessibleInterface* Canvas::make_reader(const QString&, QObject* object) {
    auto* const canvas = dynamic_cast<Canvas*>(object);
    return canvas == nullptr ? nullptr : new CanvasReader(canvas);
}

Canvas::Canvas(Container& outer, ControlListener& listener) : ControlWidget(outer, listener) {
    input().keeps_presses = true;
}

void Canvas::apply(const CanvasDescription& canvas) {
    Control::apply(canvas);
    focus_ring_ = canvas.focus_ring;
    input().tells_tabs = canvas.accepts_tabs;
    setFocusPolicy(canvas.accepts_focus ? Qt::StrongFocus : Qt::NoFocus);
    // What is as it was is left alone: each of these tells all that may listen.
    if (const QString name = objectName(); name != accessibleName()) setAccessibleName(name);
    if (const QString help = to_qt(canvas.help); help != accessibleDescription()) {
        setAccessibleDescription(help);
        setToolTip(as_plain_tool_tip(help));
    }
    if (canvas.background) {
        QPalette colors = palette();
        colors.setColor(QPalette::Window, QColor::fromRgb(*canvas.background));
        setPalette(colors);
    } else if (has_background_) {
        setPalette(QPalette());
    }
    has_background_ = canvas.background.has_value();
    setAutoFillBackground(canvas.erases_background && has_background_);
}

void Canvas::paintEvent(QPaintEvent*) {
    if (!hasFocus() || !focus_ring_) return;
    // Not the style's: some fill what they frame, and the background with it.
    constexpr int kWidth = 2;
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - rect().adjusted(kWidth, kWidth, -kWidth, -kWidth));
    painter.fillRect(rect(), palette().color(QPalette::Highlight));
}

}  // namespace tavrik::front::qt
