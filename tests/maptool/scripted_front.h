#pragma once

#include "toolkit/front/front.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A front that nobody sees: it keeps what it is told, and a test does what a person would.
namespace tavrik {

class ShownWindow;

class ShownButton final : public front::ButtonFace {
public:
    ShownButton(ShownWindow& window, front::ButtonListener& listener);
    ~ShownButton() override;

    void apply(const front::ButtonDescription& button) override { description = button; }
    void set_focus() override {}
    // Presses a disabled button too: it is for the core to refuse.
    void press() { listener_.pressed(); }

    front::ButtonDescription description;

private:
    ShownWindow& window_;
    front::ButtonListener& listener_;
};

class ScriptedFront;

class ShownWindow final : public front::WindowFace {
public:
    ShownWindow(ScriptedFront& front, front::WindowListener& listener);
    ~ShownWindow() override;

    void apply(const front::WindowDescription& window) override { description = window; }
    void apply_menus(std::span<const front::MenuDescription> bar) override { menus.assign(bar.begin(), bar.end()); }
    std::unique_ptr<front::ButtonFace> make_button(front::ButtonListener& listener) override;
    void bring_to_front() override {}

    ShownButton& button(std::string_view caption) const;
    void open_menus() { listener_.menus_opening(); }
    // By its text, with the mnemonic.
    void choose(std::string_view menu, std::string_view entry);
    void ask_to_close() { listener_.close_requested(); }

    front::WindowDescription description;
    std::vector<front::MenuDescription> menus;
    std::vector<ShownButton*> buttons;  // in the order in which they were made

private:
    ScriptedFront& front_;
    front::WindowListener& listener_;
};

class ScriptedFront final : public front::Front {
public:
    using Script = std::function<void(ScriptedFront&)>;

    explicit ScriptedFront(Script script) : script_(std::move(script)) {}

    void run() override { script_(*this); }
    void quit() override { ++times_quit; }
    void pump(bool) override {}
    void post(std::function<void()> call) override { call(); }
    std::unique_ptr<front::WindowFace> make_window(front::WindowListener& listener) override;
    std::size_t show_message(const front::MessageDescription& message, front::WindowFace* over) override;
    std::optional<std::string> choose_file(const front::FileChoice& choice, front::WindowFace* over) override;

    ShownWindow& window() const { return *windows.at(0); }
    void press(std::string_view caption) const { window().button(caption).press(); }
    bool can_press(std::string_view caption) const { return window().button(caption).description.enabled; }
    // "Load Map", with this answer to its dialog.
    void load(std::string path);
    void load_and_cancel();

    std::vector<ShownWindow*> windows;
    std::vector<std::string> messages;  // the texts of the boxes so far
    std::vector<front::FileChoice> choices;
    int times_quit = 0;

    // What happens while a box, or a dialog, is open.
    std::function<void()> when_message = [] {};
    std::function<void()> when_choice = [] {};
    // What happens instead of the making of a window.
    std::function<void()> before_window = [] {};

private:
    Script script_;
    std::optional<std::string> answer_;
};

}  // namespace tavrik
