#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/button.h"
#include "toolkit/fronts/qt/content.h"

#include <QPointer>

namespace tavrik::front::qt {

class QtButtonFace final : public ButtonFace {
public:
    QtButtonFace(Content& content, ButtonListener& listener);
    ~QtButtonFace() override;

    void apply(const ButtonDescription& button) override;
    void set_focus() override;

private:
    // Both go with the window, which may end before the face of its button.
    QPointer<Content> content_;
    QPointer<Button> button_;
};

}  // namespace tavrik::front::qt
