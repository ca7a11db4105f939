#include "toolkit/fronts/qt/button.h"

#include "toolkit/fronts/qt/text.h"
#include "toolkit/fronts/qt/text_font.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>
#include <QtMath>

#include <algorithm>

namespace tavrik::front::qt {

Button::Button(Container& outer, ControlListener& control, ButtonListener& button)
    : ControlWidget(outer, control), button_(button) {
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(false);
}

void Button::apply(const ButtonDescription& button) {
    Control::apply(button);
    if (const QString caption = to_qt(button.caption); caption != caption_) {
        caption_ = caption;
        caption_width_ = -1;
        setText(caption_);
    }
    const QString help = to_qt(button.help);
    if (help != accessibleDescription()) setAccessibleDescription(help);
    apply_help(text() != caption_);
    if (button.style != TextStyle() || testAttribute(Qt::WA_SetFont))
        setFont(styled(QApplication::font(this), button.style));
    is_default_ = button.is_default;
    is_cancel_ = button.is_cancel;
    setDefault(is_default_);
}

// As tall as its size hint, which would measure the caption once more.
int Button::wanted_height() const {
    ensurePolished();
    QStyleOptionButton option;
    initStyleOption(&option);
    const int lines = 1 + static_cast<int>(caption_.count(u'\n'));
    const QSize contents(0, lines * fontMetrics().height() + (lines - 1) * std::max(0, fontMetrics().leading()));
    const int height = style()->sizeFromContents(QStyle::CT_PushButton, &option, contents, this).height();
    return std::max(Control::wanted_height(), height);
}

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

void Button::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) caption_width_ = -1;
}

void Button::nextCheckState() {
    if (!reports()) return;
    // It is up again, and is to look like that however long the answer takes.
    repaint();
    button_.pressed();
}

QRect Button::room_for_caption(QSize size) const {
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), size);
    return style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
}

int Button::caption_width() const {
    if (caption_width_ < 0) {
        // One line has a shorter way.
        const bool one_line = !caption_.contains(u'\n') && !caption_.contains(u'\t');
        caption_width_ = one_line ? qCeil(QFontMetricsF(font(), this).horizontalAdvance(without_mnemonic(caption_)))
                                  : fontMetrics().size(Qt::TextShowMnemonic, caption_).width();
    }
    return caption_width_;
}

void Button::apply_help(bool caption_shortened) {
    const QString help = accessibleDescription();
    QStringList lines;
    if (caption_shortened) lines << without_mnemonic(caption_);
    if (!help.isEmpty()) lines << help;
    const QString tip = as_plain_tool_tip(lines.join(u'\n'));
    if (tip != toolTip()) setToolTip(tip);
}

}  // namespace tavrik::front::qt
