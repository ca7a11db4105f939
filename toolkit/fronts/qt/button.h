#pragma once

#include "toolkit/fronts/qt/control.h"

#include <QPushButton>

namespace tavrik::front::qt {

class Button final : public ControlWidget<QPushButton> {
public:
    Button(Container& outer, ControlListener& control, ButtonListener& button);

    void apply(const ButtonDescription& button);
    bool is_default() const { return is_default_; }
    bool is_cancel() const { return is_cancel_; }

    int wanted_height() const override;
    int wanted_width() const override;
    // Shortens the caption if it doesn't fit.
    void place(const QRect& rect) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    // What Qt calls for each press: a connection to its signal would cost each button several times as much memory.
    void nextCheckState() override;

private:
    // What the style leaves for the caption in a button of this size.
    QRect room_for_caption(QSize size) const;
    int caption_width() const;
    void apply_help(bool caption_shortened);

    ButtonListener& button_;
    QString caption_;
    mutable int caption_width_ = -1;  // until it is asked for
    bool is_default_ = false;
    bool is_cancel_ = false;
};

}  // namespace tavrik::front::qt
