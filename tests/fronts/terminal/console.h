#pragma once

#include "tests/support/quiet_listeners.h"
#include "toolkit/fronts/terminal/descriptor.h"
#include "toolkit/fronts/terminal/terminal_front.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A program with fake listeners on a front whose input and output are pipes.
namespace tavrik::front::terminal {

class Pipe {
public:
    Pipe() {
        int ends[2];
        if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
        read_end_ = Descriptor(ends[0]);
        write_end_ = Descriptor(ends[1]);
    }

    int read_end() const { return read_end_.number(); }
    int write_end() const { return write_end_.number(); }
    void close_read_end() { const Descriptor closed = std::move(read_end_); }
    void close_write_end() { const Descriptor closed = std::move(write_end_); }

    void write(std::string_view text) const {
        ASSERT_EQ(::write(write_end(), text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }
    // All that is in the pipe, without waiting for more.
    std::string read() const {
        ::fcntl(read_end(), F_SETFL, O_NONBLOCK);
        std::string text;
        char block[4096];
        for (ssize_t length; (length = ::read(read_end(), block, sizeof block)) > 0;) {
            text.append(block, static_cast<std::size_t>(length));
        }
        return text;
    }

private:
    Descriptor read_end_;
    Descriptor write_end_;
};

using Reports = std::vector<std::string>;

struct FakeButton final : test::QuietControl, ButtonListener {
    void pressed() override { when_pressed(); }

    std::function<void()> when_pressed;
};

struct FakeWindow final : test::QuietWindow {
    void activated(bool active) override { when_activated(active); }
    void menus_opening() override { when_menus_open(); }
    void menu_chosen(MenuId chosen) override { when_chosen(chosen); }

    std::function<void(bool)> when_activated = [](bool) {};
    std::function<void()> when_menus_open = [] {};
    std::function<void(MenuId)> when_chosen;
};

struct FakeApplication final : ApplicationListener {
    void quit_requested() override { when_quit_requested(); }
    void woken() override { when_woken(); }
    void activated(bool active) override { when_activated(active); }
    void open_documents(std::span<const std::string>) override {}

    std::function<void()> when_quit_requested;
    std::function<void()> when_woken;
    std::function<void(bool)> when_activated = [](bool) {};
};

// One window, "maptool", with File/Quit and the buttons "Load" and "Null", the second disabled.
class Program {
public:
    Program() {
        application.when_quit_requested = [this] { reports.push_back("quit requested"); };
        window_listener.when_chosen = [this](MenuId id) { reports.push_back("chosen " + std::to_string(id)); };
        load_listener.when_pressed = [this] { reports.push_back("load"); };
        null_listener.when_pressed = [this] { reports.push_back("null"); };
        window->apply({.title = "maptool", .visible = true});
        apply_quit(true);
        load->apply({{}, "&Load"});
        null->apply({{.enabled = false}, "Null"});
    }

    void apply_quit(bool enabled) const {
        const MenuDescription bar[] = {{.text = "&File", .children = {{.id = 7, .text = "&Quit", .enabled = enabled}}}};
        window->apply_menus(bar);
    }
    // Runs to the end of the script, and returns what was printed.
    std::string run(std::string_view script) {
        input.write(script);
        input.close_write_end();
        front->run();
        return output.read();
    }

    Reports reports;
    FakeApplication application;
    FakeWindow window_listener;
    FakeButton load_listener;
    FakeButton null_listener;
    Pipe input;
    Pipe output;
    std::unique_ptr<Front> front = make_terminal_front({"tool", application}, input.read_end(), output.write_end());
    std::unique_ptr<WindowFace> window = front->make_window(window_listener);
    std::unique_ptr<ButtonFace> load = window->make_button(load_listener, load_listener);
    std::unique_ptr<ButtonFace> null = window->make_button(null_listener, null_listener);
};

inline constexpr const char* kScreen = "maptool\nFile: Quit\n1. Load\n2. Null (off)\n";

inline constexpr const char* kHelp =
    "Type the number or the caption of a control, Menu/Entry, or menu and a control.\n";

}  // namespace tavrik::front::terminal
