#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/container.h"
#include "toolkit/fronts/qt/input_reports.h"

#include <QRect>
#include <QWidget>

class QFocusEvent;

namespace tavrik::front::qt {

// What the widgets of all kinds of control are beside being one.
class Control {
public:
    Control(QWidget& widget, Container& outer, ControlListener& listener);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    QWidget& widget() const { return widget_; }
    // What lies in this control, and what it lies in.
    Container& container() { return container_; }
    void arrange_later() { outer_.arrange_later(); }

    QRect declared_bounds() const { return bounds_; }
    int tab_index() const { return tab_index_; }
    bool is_shown() const { return shown_; }
    // The least size at which the desktop's style draws it whole.
    virtual int wanted_height() const { return bounds_.height(); }
    virtual int wanted_width() const { return bounds_.width(); }
    virtual void place(const QRect& rect) { widget_.setGeometry(rect); }

    // Reports nothing any more, disappears, and is deleted when no event of its own is under way.
    void retire();

protected:
    ~Control() = default;

    void apply(const ControlDescription& control);
    // Whether the event is used up.
    bool report(QEvent& event);
    bool reports() const { return listener_ != nullptr; }
    InputReports& input() { return input_; }
    virtual void stop_reporting();

private:
    void report_focus(const QFocusEvent& event, bool has_focus);

    QWidget& widget_;
    Container& outer_;
    Container container_;
    ControlListener* listener_;
    InputReports input_;
    QRect bounds_;
    int tab_index_ = 0;
    bool shown_ = true;
    bool looks_inactive_ = true;
};

// A control that is a widget of the given kind.
template <class Widget>
class ControlWidget : public Widget, public Control {
public:
    ControlWidget(Container& outer, ControlListener& listener)
        : Widget(&outer.widget()), Control(static_cast<QWidget&>(*this), outer, listener) {}

protected:
    bool event(QEvent* event) override { return report(*event) || Widget::event(event); }
};

}  // namespace tavrik::front::qt
