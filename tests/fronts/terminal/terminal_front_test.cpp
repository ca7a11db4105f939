#include "toolkit/fronts/terminal/terminal_front.h"

#include "tests/fronts/terminal/console.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

namespace tavrik::front::terminal {
namespace {

const MessageDescription kSave{.text = "Save?", .buttons = {"Save", "Discard", "Cancel"}, .cancel_button = 2};
constexpr const char* kSaveText = "Save?\nButtons: Save (default), Discard, Cancel\n";

TEST(TerminalFront, A_number_or_a_caption_presses_the_button) {
    Program program;
    EXPECT_EQ(program.run("1\nLOAD\r\nload"), kScreen);
    EXPECT_EQ(program.reports, (Reports{"load", "load", "load", "quit requested"}));
}

TEST(TerminalFront, A_menu_path_chooses_the_entry) {
    Program program;
    EXPECT_EQ(program.run("file/QUIT\n"), kScreen);
    EXPECT_EQ(program.reports, (Reports{"chosen 7", "quit requested"}));
}

TEST(TerminalFront, What_cannot_be_used_is_told_and_not_done) {
    Program program;
    program.apply_quit(false);
    EXPECT_EQ(program.run("2\nFile/Quit\n"),
              "maptool\nFile: Quit (off)\n1. Load\n2. Null (off)\n"
              "Null can't be used now.\n"
              "File/Quit can't be used now.\n");
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

TEST(TerminalFront, A_line_that_means_nothing_is_answered_with_one_line_of_help) {
    Program program;
    EXPECT_EQ(program.run("\nFile\n3\n"), std::string(kScreen) + kHelp + kHelp + kHelp);
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

TEST(TerminalFront, Each_change_is_printed_before_the_next_line_is_taken) {
    Program program;
    program.load_listener.when_pressed = [&] {
        program.null->apply({.caption = "Null", .enabled = true});
        program.window->apply({.title = "valley\n1. Forged", .visible = true, .menu_bar_visible = false});
    };
    EXPECT_EQ(program.run("1\n2\nFile/Quit\n"),
              std::string(kScreen) + "valley\\n1. Forged\n1. Load\n2. Null\n" + kHelp);
    EXPECT_EQ(program.reports, (Reports{"null", "quit requested"}));
}

TEST(TerminalFront, Controls_are_numbered_in_tab_order_and_hidden_ones_left_out) {
    Program program;
    FakeButton listener;
    const auto hidden = program.window->make_button(listener);
    hidden->apply({.caption = "Hidden", .visible = false});
    program.load->apply({.caption = "Load", .tab_index = 1});
    program.window->apply({.visible = true});
    EXPECT_EQ(program.run("2\n"), "tool\nFile: Quit\n1. Null (off)\n2. Load\n");
    EXPECT_EQ(program.reports, (Reports{"load", "quit requested"}));
}

TEST(TerminalFront, Menus_are_brought_up_to_date_before_they_are_printed_and_before_one_is_chosen) {
    Program program;
    int openings = 0;
    program.window_listener.when_menus_open = [&] { program.apply_quit(++openings == 1); };
    EXPECT_EQ(program.run("File/Quit\n"), std::string(kScreen) +
                                              "File/Quit can't be used now.\n"
                                              "maptool\nFile: Quit (off)\n1. Load\n2. Null (off)\n");
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

TEST(TerminalFront, Menus_do_not_open_while_they_open) {
    Program program;
    int openings = 0;
    program.window_listener.when_menus_open = [&] {
        ++openings;
        program.front->pump(false);
    };
    program.front->pump(false);
    EXPECT_EQ(openings, 1);
    EXPECT_EQ(program.output.read(), kScreen);
}

TEST(TerminalFront, A_message_is_answered_by_a_caption_or_by_an_empty_line) {
    Program program;
    std::vector<std::size_t> answers;
    program.load_listener.when_pressed = [&] {
        answers.push_back(program.front->show_message(kSave, program.window.get()));
    };
    const std::string help = "Type the caption of a button, or an empty line for the default one.\n";
    EXPECT_EQ(program.run("1\nwhat\nDISCARD\n1\n\n1\n"),
              kScreen + (kSaveText + help) + kScreen + kSaveText + kScreen + kSaveText + kScreen);
    EXPECT_EQ(answers, (std::vector<std::size_t>{1, 0, 2}));
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

TEST(TerminalFront, A_file_is_chosen_by_its_path_or_cancelled_by_an_empty_line) {
    Program program;
    const std::string path = testing::TempDir() + "terminal-front.map";
    std::ofstream(path) << "map";
    std::vector<std::optional<std::string>> chosen;
    program.load_listener.when_pressed = [&] { chosen.push_back(program.front->choose_file({}, nullptr)); };
    const std::string prompt = "Path, or an empty line to cancel:\n";
    EXPECT_EQ(program.run("1\n/\n" + path + "\n1\n\n1\n"), kScreen + prompt + "/ can't be chosen: Is a directory\n" +
                                                               prompt + kScreen + prompt + kScreen + prompt + kScreen);
    EXPECT_EQ(chosen, (std::vector<std::optional<std::string>>{path, {}, {}}));
    std::remove(path.c_str());
}

TEST(TerminalFront, Quitting_under_a_message_ends_the_message_and_the_run) {
    Program program;
    std::size_t answer = 0;
    program.load_listener.when_pressed = [&] {
        program.front->post([&] { program.front->quit(); });
        answer = program.front->show_message(kSave, nullptr);
    };
    program.input.write("1\nDiscard\n");
    program.front->run();
    EXPECT_EQ(answer, kSave.cancel_button);
    EXPECT_EQ(program.reports, Reports{});
}

TEST(TerminalFront, The_end_of_input_quits_even_if_a_question_is_asked_about_it) {
    Program program;
    program.application.when_quit_requested = [&] {
        program.reports.push_back(std::to_string(program.front->show_message(kSave, nullptr)));
    };
    EXPECT_EQ(program.run(""), std::string(kScreen) + kSaveText);
    EXPECT_EQ(program.reports, Reports{"2"});
}

TEST(TerminalFront, An_output_that_nobody_reads_ends_the_program_in_order) {
    Program program;
    program.output.close_read_end();
    program.input.write("1\n");
    program.front->run();
    EXPECT_EQ(program.reports, Reports{"quit requested"});
}

TEST(TerminalFront, A_reader_that_is_slower_than_the_output_gets_all_of_it) {
    Program program;
    const std::string title(1 << 20, 'x');
    program.window->apply({.title = title, .visible = true, .menu_bar_visible = false});
    program.input.close_write_end();
    ::fcntl(program.output.write_end(), F_SETFL, O_NONBLOCK);

    std::string printed;
    std::thread reader([&] {
        char block[1000];
        for (ssize_t length; (length = ::read(program.output.read_end(), block, sizeof block)) > 0;) {
            printed.append(block, static_cast<std::size_t>(length));
        }
    });
    program.front->run();
    program.output.close_write_end();
    reader.join();
    EXPECT_EQ(printed, title + "\n1. Load\n2. Null (off)\n");
}

TEST(TerminalFront, A_program_started_without_standard_descriptors_ends_in_order) {
    const auto run_without_descriptors = [] {
        ::alarm(30);
        ::close(STDIN_FILENO);
        ::close(STDOUT_FILENO);
        FakeApplication application;
        bool asked = false;
        application.when_quit_requested = [&] { asked = true; };
        make_terminal_front({"tool", application})->run();
        ::_exit(asked ? 0 : 1);
    };
    EXPECT_EXIT(run_without_descriptors(), testing::ExitedWithCode(0), "");
}

TEST(TerminalFront, A_line_in_two_pieces_acts_once_it_is_whole) {
    Program program;
    program.input.write("lo");
    program.front->pump(false);
    EXPECT_EQ(program.reports, Reports{});
    program.input.write("ad\n");
    program.front->pump(false);
    EXPECT_EQ(program.reports, Reports{"load"});
}

TEST(TerminalFront, A_call_posted_by_another_thread_wakes_the_wait_and_runs_on_the_main_thread) {
    Program program;
    std::thread::id ran_on;
    std::thread poster([&] {
        program.front->post([&] { ran_on = std::this_thread::get_id(); });
        program.front->post([&] { program.front->quit(); });
    });
    program.front->run();
    poster.join();
    EXPECT_EQ(ran_on, std::this_thread::get_id());
}

TEST(TerminalFront, Posted_calls_run_in_order_and_before_the_next_line) {
    Program program;
    program.load_listener.when_pressed = [&] {
        program.reports.push_back("load");
        program.front->post([&] {
            program.front->post([&] { program.reports.push_back("third"); });
            program.reports.push_back("first");
        });
        program.front->post([&] { program.reports.push_back("second"); });
    };
    program.run("1\nFile/Quit\n");
    EXPECT_EQ(program.reports, (Reports{"load", "first", "second", "chosen 7", "third", "quit requested"}));
}

TEST(TerminalFront, The_frontmost_visible_window_is_shown) {
    Program program;
    FakeWindow listener;
    auto second = program.front->make_window(listener);
    program.window_listener.when_activated = [&](bool active) { program.reports.push_back(active ? "1 on" : "1 off"); };
    listener.when_activated = [&](bool active) { program.reports.push_back(active ? "2 on" : "2 off"); };
    const auto printed = [&] {
        program.front->pump(false);
        return program.output.read();
    };
    EXPECT_EQ(printed(), kScreen);
    second->apply({.title = "second", .visible = true});
    EXPECT_EQ(printed(), "second\n");
    program.window->bring_to_front();
    EXPECT_EQ(printed(), kScreen);
    second->bring_to_front();
    EXPECT_EQ(printed(), "second\n");
    second.reset();
    EXPECT_EQ(printed(), kScreen);
    program.window->apply({.visible = false});
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(program.reports, (Reports{"1 on", "1 off", "2 on", "2 off", "1 on", "1 off", "2 on", "1 on", "1 off"}));
}

TEST(TerminalFront, A_listener_may_destroy_the_face_that_reports_to_it) {
    Program program;
    program.load_listener.when_pressed = [&] { program.load.reset(); };
    program.window_listener.when_chosen = [&](MenuId) { program.window.reset(); };
    EXPECT_EQ(program.run("1\nFile/Quit\n1\n"), std::string(kScreen) + "maptool\nFile: Quit\n1. Null (off)\n" + kHelp);
}

TEST(TerminalFront, A_window_may_go_while_its_menus_open) {
    Program program;
    program.window_listener.when_menus_open = [&] { program.window.reset(); };
    EXPECT_EQ(program.run("File/Quit\n"), kHelp);
}

TEST(TerminalFront, The_focus_moves_from_one_button_to_the_other) {
    Program program;
    program.null->apply({.caption = "Null"});
    program.load_listener.when_focus_changed = [&](bool has) {
        program.reports.push_back(has ? "load on" : "load off");
    };
    program.null_listener.when_focus_changed = [&](bool has) {
        program.reports.push_back(has ? "null on" : "null off");
        program.null.reset();
    };
    program.load->set_focus();
    program.load->set_focus();
    program.null->set_focus();
    program.load->set_focus();
    EXPECT_EQ(program.reports, (Reports{"load on", "load off", "null on", "load on"}));
}

}  // namespace
}  // namespace tavrik::front::terminal
