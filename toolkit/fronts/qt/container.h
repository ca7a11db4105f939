#pragma once

#include <QSize>
#include <QWidget>

#include <optional>
#include <vector>

namespace tavrik::front::qt {

class Button;
class Control;

// The controls that lie in a widget: where they stand, and in what order the keys reach them.
class Container {
public:
    explicit Container(QWidget& widget) : widget_(widget) {}

    QWidget& widget() const { return widget_; }

    void add(Control& control);
    void remove(Control& control);
    bool empty() const { return controls_.empty(); }

    // Places the controls anew, once for all that changes until then.
    void arrange_later();
    void arrange();

    // All that takes part in the order of the keys, what lies in a control behind it.
    void collect_in_tab_order(std::vector<Control*>& controls) const;
    // Nothing in here reports any more.
    void retire_all();

private:
    QWidget& widget_;
    std::vector<Control*> controls_;  // in order of creation
    std::optional<QSize> arranged_;   // the size for which they stand right
    bool arranges_later_ = false;
};

}  // namespace tavrik::front::qt
