#pragma once

#include "toolkit/fronts/qt/control.h"

namespace tavrik::front::qt {

class Canvas final : public ControlWidget<QWidget> {
public:
    Canvas(Container& outer, ControlListener& listener);

    void apply(const CanvasDescription& canvas);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool focus_ring_ = true;
    bool has_background_ = false;
};

}  // namespace tavrik::front::qt
