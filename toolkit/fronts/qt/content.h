#pragma once

#include "toolkit/fronts/qt/container.h"
#include "toolkit/fronts/qt/input_reports.h"

#include <QWidget>

#include <optional>
#include <vector>

class QMouseEvent;

namespace tavrik::front::qt {

class Button;

// What a window holds below its menu bar: the controls, and which one the keys go to.
class Content final : public QWidget {
public:
    Content(QWidget* parent, WindowListener& listener);

    Container& container() { return container_; }
    void arrange();

    Button* default_button() const;
    Button* cancel_button() const;
    // Nothing in here reports any more.
    void retire();

    // Tells the window of a widget where the pointer has moved to.
    static void report_pointer(const QWidget& widget, const QMouseEvent& event);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void order_tabs();
    void focus_first_if_none();
    Button* find_usable(bool (Button::*is_marked)() const) const;
    void report_pointer_at(QPoint position);

    WindowListener* listener_;
    Container container_;
    InputReports input_;
    std::vector<Control*> tab_order_;
    std::optional<QPoint> pointer_;
};

}  // namespace tavrik::front::qt
