#pragma once

#include "toolkit/front/descriptions.h"
#include "toolkit/fronts/terminal/question.h"

#include <optional>

namespace tavrik::front::terminal {

class FileQuestion final : public Question {
public:
    explicit FileQuestion(const FileChoice& choice);

    std::string text() const override;
    std::string take(std::string line) override;

    const std::optional<std::string>& chosen() const { return chosen_; }

private:
    const FileChoice& choice_;
    std::optional<std::string> chosen_;
};

}  // namespace tavrik::front::terminal
