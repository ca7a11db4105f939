#include "toolkit/fronts/qt/button.h"

#include "toolkit/fronts/qt/text.h"
#include "toolkit/fronts/qt/text_font.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace tavrik::front::qt {

Button::Button(Container& outer, ControlListener& control, ButtonListener& button) : ControlWidget(outer, control) {
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this, &button] {
        if (reports()) button.pressed();
    });
}

void Button::apply(const ButtonDescription& button) {
    Control::apply(button);
    caption_ = to_qt(button.caption);
    help_ = to_qt(button.help);
    setText(caption_);
    if (!help_.isEmpty() || !accessibleDescription().isEmpty()) setAccessibleDescription(help_);
    apply_help(false);
    if (button.style != style_) {
        style_ = button.style;
        setFont(styled(QApplication::font(this), style_));
    }
    is_default_ = button.is_default;
    is_cancel_ = button.is_cancel;
    setDefault(is_default_);
}

int Button::wanted_height() const { return std::max(Control::wanted_height(), sizeHint().height()); }

int Button::wanted_width() const {
    const QSize size = declared_bounds().size();
    const int margins = size.width() - room_for_caption(size).width();
    return std::max(size.width(), margins + caption_width());
}

void Button::place(const QRect& rect) {
    const int room = room_for_caption(rect.size()).width();
    const bool too_long = caption_width() > room;
    // Who can't see it reads the whole one.
    if (too_long || !accessibleName().isEmpty()) setAccessibleName(without_mnemonic(caption_));
    setText(too_long ? fontMetrics().elidedText(caption_, Qt::ElideRight, room, Qt::TextShowMnemonic) : caption_);
    apply_help(too_long);
    setGeometry(rect);
}

void Button::keyPressEvent(QKeyEvent* event) {
    // Return is for the default button, which the window knows; some desktops have Qt press the focused one.
    const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    is_return ? event->ignore() : QPushButton::keyPressEvent(event);
}

QRect Button::room_for_caption(QSize size) const {
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), size);
    return style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
}

int Button::caption_width() const { return fontMetrics().size(Qt::TextShowMnemonic, caption_).width(); }

void Button::apply_help(bool caption_shortened) {
    QStringList lines;
    if (caption_shortened) lines << without_mnemonic(caption_);
    if (!help_.isEmpty()) lines << help_;
    const QString tip = as_plain_tool_tip(lines.join(u'\n'));
    if (tip != toolTip()) setToolTip(tip);
}

}  // namespace tavrik::front::qt
