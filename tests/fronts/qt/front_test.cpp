#include "tests/fronts/qt/front_fixture.h"

#include <clocale>
#include <csignal>
#include <thread>

namespace tavrik::front::qt {
namespace {

using QtFrontLoop = QtFrontTest;

TEST_F(QtFrontLoop, Quit_ends_run_from_inside) {
    front->post([this] { front->quit(); });
    front->run();
}

TEST_F(QtFrontLoop, Quit_before_run_ends_it_at_once) {
    front->quit();
    front->run();
}

TEST_F(QtFrontLoop, Any_thread_may_post_and_the_call_comes_on_the_main_one) {
    std::thread::id ran_on;
    std::thread other([&] {
        front->post([&] {
            ran_on = std::this_thread::get_id();
            front->quit();
        });
    });
    front->run();
    other.join();
    EXPECT_EQ(ran_on, std::this_thread::get_id());
}

TEST_F(QtFrontLoop, Calls_posted_after_quit_are_dropped) {
    const auto held = std::make_shared<int>(0);
    front->quit();
    front->post([held] { ++*held; });
    front->run();
    front->pump(false);
    EXPECT_EQ(*held, 0);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(QtFrontLoop, Pump_dispatches_what_has_happened) {
    Log log;
    front->post([&] { log.push_back("first"); });
    front->post([&] { log.push_back("second"); });
    front->pump(false);
    EXPECT_EQ(log, (Log{"first", "second"}));
}

TEST_F(QtFrontLoop, Pump_waits_for_the_first_thing_to_happen) {
    front->pump(false);
    bool happened = false;
    std::thread other([&] { front->post([&] { happened = true; }); });
    while (!happened) front->pump(true);
    other.join();
}

TEST_F(QtFrontLoop, Each_signal_that_asks_to_end_is_reported) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction action {};
        ::sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN) continue;  // the tests run in the background
        const int before = application.requests;
        std::raise(signal);
        while (application.requests == before) front->pump(true);
        EXPECT_EQ(application.requests, before + 1);
    }
    EXPECT_GE(application.requests, 1);
}

TEST_F(QtFrontLoop, Signals_do_again_what_they_did_once_the_front_is_gone) {
    face.reset();
    front.reset();
    struct sigaction action {};
    ::sigaction(SIGTERM, nullptr, &action);
    EXPECT_EQ(action.sa_handler, SIG_DFL);
}

TEST_F(QtFrontLoop, The_desktops_quit_asks_and_does_not_end_the_program_itself) {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(application.requests, 1);
}

TEST_F(QtFrontLoop, A_number_has_a_point_whatever_the_locale) { EXPECT_STREQ(std::localeconv()->decimal_point, "."); }

TEST_F(QtFrontLoop, Quit_in_a_nested_pump_ends_run) {
    front->post([this] {
        front->post([this] { front->quit(); });
        front->pump(true);
    });
    front->run();
}

}  // namespace
}  // namespace tavrik::front::qt
