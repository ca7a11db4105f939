#pragma once

#include "toolkit/fronts/qt/control.h"

#include <QAccessible>

namespace tavrik::front::qt {

class Canvas final : public ControlWidget<QWidget> {
public:
    Canvas(Container& outer, ControlListener& listener);

    void apply(const CanvasDescription& canvas);

    // A factory for QAccessible, which knows no canvas: what screen readers see of one.
    static QAccessibleInterface* make_reader(const QString& class_name, QObject* object);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool focus_ring_ = true;
    bool has_background_ = false;
};

}  // namespace tavrik::front::qt
