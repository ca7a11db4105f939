#pragma once

#include "toolkit/fronts/qt/button.h"

#include <QWidget>

#include <vector>

namespace tavrik::front::qt {

// What a window holds below its menu bar: the controls, where they stand, and which one the keys go to.
class Content final : public QWidget {
public:
    explicit Content(QWidget* parent);

    Button* add_button(ButtonListener& listener);
    void remove_button(Button& button);
    // Places the controls anew, once for all that changes until then.
    void arrange_later();
    void arrange();

    Button* default_button() const;
    Button* cancel_button() const;
    // Nothing in here reports any more.
    void retire();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void place_buttons();
    void order_tabs();
    void focus_first_if_none();
    Button* find_usable(bool ButtonDescription::*mark) const;

    std::vector<Button*> buttons_;  // in order of creation
    std::vector<Button*> tab_order_;
};

}  // namespace tavrik::front::qt
