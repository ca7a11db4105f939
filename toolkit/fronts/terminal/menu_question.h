#pragma once

#include "toolkit/front/descriptions.h"
#include "toolkit/fronts/terminal/question.h"
#include "toolkit/fronts/terminal/window_view.h"

#include <optional>
#include <vector>

namespace tavrik::front::terminal {

class MenuQuestion final : public Question {
public:
    explicit MenuQuestion(const MenuDescription& menu);

    std::string text() const override;
    std::string take(std::string line) override;

    std::optional<MenuId> chosen() const { return chosen_; }

private:
    std::vector<MenuEntry> entries_;
    std::optional<MenuId> chosen_;
};

}  // namespace tavrik::front::terminal
