#include "toolkit/fronts/terminal/terminal_front.h"

#include "tests/fronts/terminal/console.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace tavrik::front::terminal {
namespace {

const MessageDescription kSave{.text = "Save?", .buttons = {"Save", "Discard", "Cancel"}, .cancel_button = 2};
constexpr const char* kSaveText = "Save?\nButtons: Save (default), Discard, Cancel\n";

TEST(TerminalFront, A_line_presses_a_button_or_chooses_an_entry_or_is_answered_with_help) {
    Program program;
    EXPECT_EQ(program.run("1\nLOAD\r\nfile/QUIT\n\nFile\n3\nload"), std::string(kScreen) + kHelp + kHelp + kHelp);
    EXPECT_EQ(program.reports, (Reports{"load", "load", "chosen 7", "load", "quit requested"}));
}

TEST(TerminalFront, Each_change_is_printed_before_the_next_line_is_taken) {
    Program program;
    FakeButton hidden_listener;
    const auto hidden = program.window->make_button(hidden_listener, hidden_listener);
    hidden->apply({{.visible = false}, "Hidden"});
    program.load_listener.when_pressed = [&] {
        program.null->apply({{}, "Null"});
        program.load->apply({{.tab_index = 1}, "Load"});
        program.window->apply({.title = "valley\n1. Forged", .visible = true, .menu_bar_visible = false});
    };
    EXPECT_EQ(program.run("1\n1\nFile/Quit\n"),
              std::string(kScreen) + "valley\\n1. Forged\n1. Null\n2. Load\n" + kHelp);
    EXPECT_EQ(program.reports, (Reports{"null", "quit requested"}));
}

TEST(TerminalFront, Menus_are_brought_up_to_date_before_they_are_printed_and_before_one_is_chosen) {
    Program program;
    int openings = 0;
    program.window_listener.when_menus_open = [&] { program.apply_quit(++openings == 1); };
    EXPECT_EQ(program.run("File/Quit\n2\n"), std::string(kScreen) +
                                                 "File/Quit can't be used now.\n"
                                                 "maptool\nFile: Quit (off)\n1. Load\n2. Null (off)\n"
                                                 "Null can't be used now.\n");
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

TEST(TerminalFront, A_message_is_answered_by_a_caption_or_by_an_empty_line) {
    Program program;
    std::vector<std::size_t> answers;
    program.load_listener.when_pressed = [&] { answers.push_back(program.front->show_message(kSave, nullptr)); };
    const std::string help = "Type the caption of a button, or an empty line for the default one.\n";
    EXPECT_EQ(program.run("1\nwhat\nDISCARD\n1\n\n1\n"),
              kScreen + (kSaveText + help) + kScreen + kSaveText + kScreen + kSaveText + kScreen);
    EXPECT_EQ(answers, (std::vector<std::size_t>{1, 0, 2}));
}

TEST(TerminalFront, A_call_posted_by_another_thread_comes_on_the_main_one_and_can_quit_under_a_message) {
    Program program;
    std::thread::id ran_on;
    std::size_t answer = 0;
    program.load_listener.when_pressed = [&] {
        std::thread poster([&] {
            program.front->post([&] {
                ran_on = std::this_thread::get_id();
                program.front->quit();
            });
        });
        answer = program.front->show_message(kSave, nullptr);
        poster.join();
    };
    program.input.write("1\n");
    program.front->run();
    EXPECT_EQ(ran_on, std::this_thread::get_id());
    EXPECT_EQ(answer, kSave.cancel_button);
    EXPECT_EQ(program.reports, Reports{});
}

TEST(TerminalFront, Posted_calls_run_in_order_and_before_the_next_line) {
    Program program;
    program.load_listener.when_pressed = [&] {
        program.front->post([&] {
            program.front->post([&] { program.reports.push_back("third"); });
            program.reports.push_back("first");
        });
        program.front->post([&] { program.reports.push_back("second"); });
    };
    program.run("1\nFile/Quit\n");
    EXPECT_EQ(program.reports, (Reports{"first", "second", "chosen 7", "third", "quit requested"}));
}

TEST(TerminalFront, A_wake_up_comes_when_it_is_time_beside_lines_and_under_a_message) {
    Program program;
    int runs = 0;
    program.application.when_woken = [&] {
        program.null->apply({{}, std::to_string(++runs)});
        if (runs == 4) return program.front->quit();
        program.front->wake_in(std::chrono::milliseconds(runs));
    };
    program.load_listener.when_pressed = [&] {
        EXPECT_EQ(program.front->show_message(kSave, nullptr), kSave.cancel_button);
    };
    program.front->wake_in({});
    program.input.write("1\n");
    program.front->run();
    EXPECT_EQ(runs, 4);
    EXPECT_EQ(program.output.read(), std::string("maptool\nFile: Quit\n1. Load\n2. 1\n") + kSaveText);
    program.front->wake_in(std::chrono::hours(1));
    program.front->pump(false);
    EXPECT_EQ(runs, 4);
}

TEST(TerminalFront, The_program_is_active_from_its_start) {
    Program program;
    program.application.when_activated = [&](bool active) { program.reports.push_back(active ? "active" : "left"); };
    program.run("1\n");
    EXPECT_EQ(program.reports, (Reports{"active", "load", "quit requested"}));
}

TEST(TerminalFront, An_output_that_nobody_reads_ends_the_program_in_order) {
    Program program;
    program.output.close_read_end();
    program.input.write("1\n");
    program.front->run();
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

TEST(TerminalFront, The_frontmost_visible_window_is_shown) {
    Program program;
    FakeWindow listener;
    auto second = program.front->make_window(listener);
    program.window_listener.when_activated = [&](bool active) { program.reports.push_back(active ? "1 on" : "1 off"); };
    listener.when_activated = [&](bool active) { program.reports.push_back(active ? "2 on" : "2 off"); };
    const std::pair<std::function<void()>, std::string> steps[] = {
        {[] {}, kScreen},
        {[&] { second->apply({.title = "second", .visible = true}); }, "second\n"},
        {[&] { program.window->bring_to_front(); }, kScreen},
        {[&] { second->bring_to_front(); }, "second\n"},
        {[&] { second.reset(); }, kScreen},
        {[&] { program.window->apply({.visible = false}); }, ""},
    };
    for (const auto& [act, printed] : steps) {
        act();
        program.front->pump(false);
        EXPECT_EQ(program.output.read(), printed);
    }
    EXPECT_EQ(program.reports, (Reports{"1 on", "1 off", "2 on", "2 off", "1 on", "1 off", "2 on", "1 on", "1 off"}));
}

TEST(TerminalFront, A_listener_may_destroy_the_face_that_reports_to_it) {
    Program program;
    program.load_listener.when_pressed = [&] { program.load.reset(); };
    program.window_listener.when_chosen = [&](MenuId) { program.window.reset(); };
    EXPECT_EQ(program.run("1\nFile/Quit\n1\n"), std::string(kScreen) + "maptool\nFile: Quit\n1. Null (off)\n" + kHelp);
    Program other;
    other.window_listener.when_menus_open = [&] { other.window.reset(); };
    EXPECT_EQ(other.run("File/Quit\n"), kHelp);
}

const MenuDescription kContext{
    .children = {{.id = 1, .text = "Cu&t"},
                 {.id = 2, .separator = true},
                 {.id = 3, .text = "More", .children = {{.id = 4, .text = "Sort", .checked = true}}},
                 {.id = 5, .text = "Paste", .enabled = false}}};
constexpr const char* kContextText =
    "1. Cut\n2. Paste (off)\n3. More/Sort (checked)\nNumber or name of an entry, or an empty line for none:\n";
constexpr const char* kContextHelp = "Type the number or the name of an entry, or an empty line to choose none.\n";

TEST(TerminalFront, A_menu_that_pops_up_takes_a_number_or_a_name_or_an_empty_line) {
    struct Case {
        const char* lines;
        std::optional<MenuId> chosen;
        std::string answer;
    };
    const Case cases[] = {
        {"1\n", 1, ""},
        {" more/SORT \r\n", 4, ""},
        {"\n", std::nullopt, ""},
        {"", std::nullopt, ""},
        {"Paste\n3\n", 4, "Paste can't be used now.\n"},
        {"4\nSort\ncut\n", 1, std::string(kContextHelp) + kContextHelp},
    };
    for (const auto& [lines, chosen, answer] : cases) {
        Program program;
        program.input.write(lines);
        program.input.close_write_end();
        EXPECT_EQ(program.front->pop_up(kContext, Point{1, 2}, program.window.get()), chosen) << lines;
        EXPECT_EQ(program.output.read(), kContextText + answer) << lines;
    }
}

TEST(TerminalFront, A_message_without_a_default_wants_a_caption) {
    Program program;
    MessageDescription message = kSave;
    message.default_button = message.cancel_button = 3;
    program.input.write("\ndiscard\n");
    EXPECT_EQ(program.front->show_message(message, nullptr), 1U);
    EXPECT_EQ(program.output.read(), "Save?\nButtons: Save, Discard, Cancel\nType the caption of a button.\n");
    program.input.close_write_end();
    EXPECT_EQ(program.front->show_message(message, nullptr), 3U) << "the end of the input cancels";
}

}  // namespace
}  // namespace tavrik::front::terminal
