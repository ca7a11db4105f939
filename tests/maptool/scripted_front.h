#pragma once

#include "tests/support/shown_controls.h"
#include "toolkit/front/front.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// A front that nobody sees: it keeps what it is told, and a test does what a person would.
namespace tavrik {

using test::ShownButton;
using test::ShownWindow;

struct ScriptedFront final : front::Front {
    using Script = std::function<void(ScriptedFront&)>;

    explicit ScriptedFront(Script played) : script(std::move(played)) {}

    void run() override { script(*this); }
    void quit() override { ++times_quit; }
    bool pump(bool) override { return false; }
    void post(std::function<void()> call) override { call(); }
    void wake_in(std::chrono::milliseconds) override {}
    void set_cursor(std::optional<front::Cursor>) override {}
    void set_help_visible(bool) override {}
    std::unique_ptr<front::WindowFace> make_window(front::WindowListener& listener) override {
        before_window();
        return std::make_unique<ShownWindow>(window, listener);
    }
    front::Rect available_area() override { return {}; }
    std::size_t show_message(const front::MessageDescription& message, front::WindowFace*) override {
        messages.push_back(message.text);
        when_message();
        return message.default_button;
    }
    std::optional<front::MenuId> pop_up(const front::MenuDescription&, std::optional<front::Point>,
                                        front::WindowFace*) override {
        return std::nullopt;
    }
    std::optional<std::string> choose_file(const front::FileChoice& choice, front::WindowFace*) override {
        when_choice(choice);
        return answer;
    }

    ShownButton& button(std::string_view caption) const { return window->button(caption); }
    // Presses a disabled button too: it is for the core to refuse.
    void press(std::string_view caption) const { button(caption).presses.pressed(); }
    // "Load Map", with this answer to its dialog.
    void load(std::optional<std::string> path) {
        answer = std::move(path);
        press("Load Map");
    }

    Script script;
    ShownWindow* window = nullptr;
    std::optional<std::string> answer;
    std::vector<std::string> messages;  // the texts of the boxes so far
    int times_quit = 0;
    // What happens while a box, or a dialog, is open, and before a window is made.
    std::function<void()> when_message = [] {};
    std::function<void(const front::FileChoice&)> when_choice = [](const front::FileChoice&) {};
    std::function<void()> before_window = [] {};
};

}  // namespace tavrik
