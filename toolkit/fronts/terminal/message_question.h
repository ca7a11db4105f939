#pragma once

#include "toolkit/front/descriptions.h"
#include "toolkit/fronts/terminal/question.h"

#include <cstddef>

namespace tavrik::front::terminal {

class MessageQuestion final : public Question {
public:
    explicit MessageQuestion(const MessageDescription& message);

    std::string text() const override;
    std::string take(std::string line) override;

    std::size_t pressed() const { return pressed_; }

private:
    void press(std::size_t button);

    const MessageDescription& message_;
    std::size_t pressed_;
};

}  // namespace tavrik::front::terminal
