#pragma once

#include "tests/support/shown_controls.h"
#include "toolkit/core/program.h"

#include <string>
#include <vector>

namespace tavrik::test {

// For its life the program's front is one without a screen: it keeps the texts of the messages, and each is dismissed
// at once.
class RecordingFront {
public:
    RecordingFront() { core::use_front(std::make_unique<Front>(*this)); }
    ~RecordingFront() { core::use_front(nullptr); }
    RecordingFront(const RecordingFront&) = delete;
    RecordingFront& operator=(const RecordingFront&) = delete;

    std::vector<std::string> messages;
    std::function<void()> when_message = [] {};
    // What a person presses in the box; the default button unless told otherwise.
    std::function<std::size_t(const front::MessageDescription&, front::WindowFace* over)> press =
        [](auto& message, auto*) { return message.default_button; };
    std::vector<std::vector<front::MenuDescription>> menus;  // each time that a window was told its menus
    front::WindowListener* window = nullptr;                 // of the window shown last
    // What a person chooses of a menu that pops up.
    std::function<std::optional<front::MenuId>(const front::MenuDescription&, std::optional<front::Point>)>
        when_popped_up = [](auto&, auto) { return std::nullopt; };
    std::function<void(std::function<void()>)> when_posted = [](auto call) { call(); };
    int quits = 0;
    std::vector<front::FileChoice> choices;  // what the file dialogs were told, and how each is answered
    std::function<std::optional<std::string>(front::WindowFace* over)> when_choice = [](auto*) { return std::nullopt; };
    std::vector<std::chrono::milliseconds> wake_ups;  // the delays that the front was told
    std::function<void()> when_run = [] {};
    std::function<void(bool wait)> when_pumped;  // without it the front has quit
    std::optional<front::Cursor> cursor;
    bool help_visible = true;

    // Can be shown, and shows nothing.
    class Window final : public ShownWindow {
    public:
        Window(RecordingFront& record, front::WindowListener& told) : ShownWindow(record.last_, told), record_(record) {
            record.windows.push_back(this);
        }
        ~Window() override { std::erase(record_.windows, this); }
        Window(const Window&) = delete;
        Window& operator=(const Window&) = delete;

        void apply_menus(std::span<const front::MenuDescription> bar) override {
            ShownWindow::apply_menus(bar);
            record_.menus.push_back(menus);
        }

    private:
        RecordingFront& record_;
    };
    std::vector<Window*> windows;  // those with a face, in the order in which they came

private:
    ShownWindow* last_ = nullptr;

    class Front final : public front::Front {
    public:
        explicit Front(RecordingFront& record) : record_(record) {}

        void run() override { record_.when_run(); }
        void quit() override { ++record_.quits; }
        bool pump(bool wait) override {
            if (const auto what_happens = record_.when_pumped) what_happens(wait);
            return record_.when_pumped != nullptr;
        }
        void post(std::function<void()> call) override { record_.when_posted(std::move(call)); }
        void wake_in(std::chrono::milliseconds delay) override { record_.wake_ups.push_back(delay); }
        void set_cursor(std::optional<front::Cursor> cursor) override { record_.cursor = std::move(cursor); }
        void set_help_visible(bool visible) override { record_.help_visible = visible; }
        std::unique_ptr<front::WindowFace> make_window(front::WindowListener& listener) override {
            record_.window = &listener;
            return std::make_unique<Window>(record_, listener);
        }
        front::Rect available_area() override { return {0, 0, 1024, 768}; }
        std::size_t show_message(const front::MessageDescription& message, front::WindowFace* over) override {
            record_.messages.push_back(message.text);
            record_.when_message();
            return record_.press(message, over);
        }
        std::optional<front::MenuId> pop_up(const front::MenuDescription& menu, std::optional<front::Point> at,
                                            front::WindowFace*) override {
            return record_.when_popped_up(menu, at);
        }
        std::optional<std::string> choose_file(const front::FileChoice& choice, front::WindowFace* over) override {
            record_.choices.push_back(choice);
            return record_.when_choice(over);
        }

    private:
        RecordingFront& record_;
    };
};

}  // namespace tavrik::test
