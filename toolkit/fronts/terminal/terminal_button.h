#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/terminal/control.h"

#include <memory>

namespace tavrik::front::terminal {

class TerminalButton final : public ButtonFace, public Control {
public:
    TerminalButton(ButtonListener& listener, std::shared_ptr<ControlList> siblings);
    TerminalButton(const TerminalButton&) = delete;
    TerminalButton& operator=(const TerminalButton&) = delete;
    ~TerminalButton() override;

    void apply(const ButtonDescription& button) override;
    void set_focus() override;

    bool visible() const override;
    int tab_index() const override;
    ControlView view() const override;
    void use() override;
    void report_focus(bool has_focus) override;

private:
    ButtonListener& listener_;
    std::shared_ptr<ControlList> siblings_;
    ButtonDescription button_;
};

}  // namespace tavrik::front::terminal
