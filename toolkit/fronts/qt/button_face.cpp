#include "toolkit/fronts/qt/button_face.h"

namespace tavrik::front::qt {

QtButtonFace::QtButtonFace(Content& content, ButtonListener& listener)
    : content_(&content), button_(content.add_button(listener)) {}

QtButtonFace::~QtButtonFace() {
    if (content_ && button_) content_->remove_button(*button_);
}

void QtButtonFace::apply(const ButtonDescription& button) {
    if (!content_ || !button_) return;
    button_->apply(button);
    content_->arrange_later();
}

void QtButtonFace::set_focus() {
    if (button_) button_->setFocus(Qt::OtherFocusReason);
}

}  // namespace tavrik::front::qt
