#pragma once

#include "toolkit/front/front.h"

#include <QPushButton>

namespace tavrik::front::qt {

class Button final : public QPushButton {
public:
    Button(ButtonListener& listener, QWidget* parent);

    void apply(const ButtonDescription& button);
    const ButtonDescription& description() const { return description_; }
    QRect declared_bounds() const;
    bool takes_part() const { return description_.visible && description_.enabled; }

    // The least height at which the desktop's style draws the button whole, and the least width that shows the caption.
    int wanted_height() const;
    int wanted_width() const;
    // Moves the button, and shortens the caption if it doesn't fit.
    void place(const QRect& rect);

    // Reports nothing any more, disappears, and is deleted when no event of its own is under way.
    void retire();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString caption() const;
    // What the style leaves for the caption in a button of this size.
    QRect room_for_caption(QSize size) const;
    int caption_width() const;
    void apply_help(bool caption_shortened);
    void report_focus(const QFocusEvent& event, bool has_focus);

    ButtonListener* listener_;
    ButtonDescription description_;
};

}  // namespace tavrik::front::qt
