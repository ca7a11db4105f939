#include "toolkit/fronts/qt/button.h"

#include "toolkit/fronts/qt/text.h"
#include "toolkit/fronts/qt/text_font.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace tavrik::front::qt {

Button::Button(ButtonListener& listener, QWidget* parent) : QPushButton(parent), listener_(&listener) {
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] {
        if (listener_) listener_->pressed();
    });
}

void Button::apply(const ButtonDescription& button) {
    const bool style_changed = button.style != description_.style;
    description_ = button;

    setObjectName(to_qt(button.name));
    setText(caption());
    setAccessibleName(without_mnemonic(caption()));
    setAccessibleDescription(to_qt(button.help));
    apply_help(false);
    if (style_changed) setFont(styled(QApplication::font(this), button.style));
    setDefault(button.is_default);
    setEnabled(button.enabled);
    setVisible(button.visible);
}

QRect Button::declared_bounds() const {
    const Rect& bounds = description_.bounds;
    return {bounds.left, bounds.top, bounds.width, bounds.height};
}

int Button::wanted_height() const { return std::max(description_.bounds.height, sizeHint().height()); }

int Button::wanted_width() const {
    const QSize size = declared_bounds().size();
    const int margins = size.width() - room_for_caption(size).width();
    return std::max(size.width(), margins + caption_width());
}

void Button::place(const QRect& rect) {
    const int room = room_for_caption(rect.size()).width();
    const bool too_long = caption_width() > room;
    setText(too_long ? fontMetrics().elidedText(caption(), Qt::ElideRight, room, Qt::TextShowMnemonic) : caption());
    apply_help(too_long);
    setGeometry(rect);
}

void Button::retire() {
    listener_ = nullptr;
    hide();
    deleteLater();
}

void Button::focusInEvent(QFocusEvent* event) {
    QPushButton::focusInEvent(event);
    report_focus(*event, true);
}

void Button::focusOutEvent(QFocusEvent* event) {
    QPushButton::focusOutEvent(event);
    report_focus(*event, false);
}

void Button::keyPressEvent(QKeyEvent* event) {
    // Return is for the default button, which the window knows; some desktops have Qt press the focused one.
    const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    is_return ? event->ignore() : QPushButton::keyPressEvent(event);
}

QString Button::caption() const { return to_qt(description_.caption); }

QRect Button::room_for_caption(QSize size) const {
    QStyleOptionButton option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), size);
    return style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
}

int Button::caption_width() const { return fontMetrics().size(Qt::TextShowMnemonic, caption()).width(); }

void Button::apply_help(bool caption_shortened) {
    QStringList lines;
    if (caption_shortened) lines << without_mnemonic(caption());
    if (!description_.help.empty()) lines << to_qt(description_.help);
    setToolTip(as_plain_tool_tip(lines.join(u'\n')));
}

void Button::report_focus(const QFocusEvent& event, bool has_focus) {
    // An open menu borrows the keys; the control keeps the focus.
    if (event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason) return;
    if (listener_) listener_->focus_changed(has_focus);
}

}  // namespace tavrik::front::qt
