#pragma once

#include "toolkit/fronts/qt/control.h"

namespace tavrik::front::qt {

// Shows nothing of its own, and lets the mouse through to what it lies in.
class Panel final : public ControlWidget<QWidget> {
public:
    Panel(Container& outer, ControlListener& listener) : ControlWidget(outer, listener) {
        setAttribute(Qt::WA_NoMousePropagation, false);
    }

    void apply(const ControlDescription& panel) { Control::apply(panel); }
};

}  // namespace tavrik::front::qt
