#pragma once

#include "toolkit/fronts/qt/control.h"

#include <QTabWidget>

class QKeyEvent;
class QMouseEvent;

namespace tavrik::front::qt {

// The tabs and the frame are the desktop's; its pages stay empty, since what lies in the control lies over all of it.
class Tabs final : public ControlWidget<QTabWidget> {
public:
    Tabs(Container& outer, ControlListener& control, TabsListener& tabs);
    ~Tabs() override;

    void apply(const TabsDescription& tabs);
    int tab_at(QPoint at) const;

protected:
    bool event(QEvent* event) override;

private:
    // The row of tabs, which has the mouse and the keys of the control.
    class Bar;

    bool report_of_bar(QEvent& event);
    bool switch_by(const QKeyEvent& event);
    void apply_captions(const std::vector<std::string>& captions);
    void apply_font(const TabsDescription& tabs);

    bool applying_ = false;
    bool small_ = false;
    TextStyle style_;
};

}  // namespace tavrik::front::qt
