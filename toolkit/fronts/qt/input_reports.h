#pragma once

#include "toolkit/front/front.h"

#include <QWidget>

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace tavrik::front::qt {

// The key as a listener is told of it.
Key to_key(const QKeyEvent& event);

// Tells a listener what the person does with a widget. Any report may delete the widget.
class InputReports {
public:
    InputReports(QWidget& widget, InputListener& listener) : widget_(widget), listener_(&listener) {}

    // Whether the event is used up.
    bool report(QEvent& event);
    // Nothing is told any more.
    void stop() { listener_ = nullptr; }

    // Whether the Tab key is told of, instead of moving the focus.
    bool tells_tabs = false;
    // Whether presses that nobody wants end here too.
    bool keeps_presses = false;

private:
    bool report_press(QMouseEvent& event);
    bool report_move(QMouseEvent& event);
    bool report_release(QMouseEvent& event);
    bool report_wheel(QWheelEvent& event);
    bool report_key(QKeyEvent& event);
    bool report_menu(QContextMenuEvent& event);

    QWidget& widget_;
    InputListener* listener_;
    bool taken_ = false;  // a press that is under way
};

}  // namespace tavrik::front::qt
