#include "toolkit/fronts/qt/message_box.h"

#include "toolkit/fronts/qt/text.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace tavrik::front::qt {
namespace {

QMessageBox::Icon icon_of(const MessageDescription& message) {
    switch (message.icon) {
        case MessageIcon::kNone:
            return QMessageBox::NoIcon;
        case MessageIcon::kNote:
            return QMessageBox::Information;
        case MessageIcon::kCaution:
            return QMessageBox::Warning;
        case MessageIcon::kStop:
            return QMessageBox::Critical;
        case MessageIcon::kQuestion:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

bool has_default(const MessageDescription& message) { return message.default_button < message.buttons.size(); }

// The platform places buttons by their roles.
QMessageBox::ButtonRole role_of(std::size_t button, const MessageDescription& message) {
    if (button == message.cancel_button && message.buttons.size() > 1) return QMessageBox::RejectRole;
    if (button != 0) return QMessageBox::DestructiveRole;
    // Of what accepts Qt makes a default.
    return has_default(message) ? QMessageBox::AcceptRole : QMessageBox::YesRole;
}

// Both texts are shown as they are, and can be copied out. The box has no setting for its second label.
void show_plainly(const QMessageBox& box) {
    for (QLabel* label : box.findChildren<QLabel*>()) {
        if (label->text().isEmpty()) continue;
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }
}

std::vector<QPushButton*> add_buttons(QMessageBox& box, const MessageDescription& message) {
    std::vector<QPushButton*> buttons;
    for (std::size_t i = 0; i < message.buttons.size(); ++i) {
        buttons.push_back(box.addButton(to_qt(message.buttons[i]), role_of(i, message)));
    }
    for (QPushButton* const button : buttons) button->setAutoDefault(has_default(message));
    if (has_default(message)) box.setDefaultButton(buttons[message.default_button]);
    if (message.cancel_button < buttons.size()) box.setEscapeButton(buttons[message.cancel_button]);
    return buttons;
}

}  // namespace

std::size_t show_message(OpenDialogs& dialogs, const MessageDescription& message, QWidget* over) {
    const ScopedDialog<QMessageBox> box(over);
    box->setWindowTitle(message.title.empty() ? QCoreApplication::applicationName() : to_qt(message.title));
    box->setIcon(icon_of(message));
    box->setText(to_qt(message.text));
    box->setInformativeText(to_qt(message.explanation));
    show_plainly(*box);
    const std::vector<QPushButton*> buttons = add_buttons(*box, message);

    dialogs.run(*box);

    if (!box) return message.cancel_button;
    const auto clicked = std::find(buttons.begin(), buttons.end(), box->clickedButton());
    if (clicked == buttons.end()) return message.cancel_button;
    return static_cast<std::size_t>(clicked - buttons.begin());
}

}  // namespace tavrik::front::qt
