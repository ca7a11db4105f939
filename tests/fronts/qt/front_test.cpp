#include "tests/fronts/qt/front_fixture.h"

#include <chrono>
#include <clocale>
#include <thread>

namespace tavrik::front::qt {
namespace {

using QtFrontLoop = QtFrontTest;

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

TEST_F(QtFrontLoop, Quit_ends_run_before_it_begins_and_drops_later_calls) {
    const auto held = std::make_shared<int>(0);
    front->quit();
    front->post([held] { ++*held; });
    front->run();
    front->pump(false);
    EXPECT_EQ(*held, 0);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(QtFrontLoop, Pump_dispatches_what_has_happened_and_waits_if_told_to) {
    std::string log;
    front->post([&] { log += 'a'; });
    front->post([&] { log += 'b'; });
    front->pump(false);
    EXPECT_EQ(log, "ab");
    std::thread other([&] { front->post([&] { log += 'c'; }); });
    while (log == "ab") front->pump(true);
    other.join();
}

TEST_F(QtFrontLoop, Threads_run_when_their_time_has_come_and_leave_room_for_events) {
    int runs = 0;
    bool posted_call_came = false;
    application.when_threads_run = [&] {
        if (++runs == 2) front->post([&] { posted_call_came = true; });
        if (posted_call_came && runs >= 4) return front->quit();
        front->run_threads_in(std::chrono::milliseconds(runs == 1 ? 5 : 0));
    };
    front->run_threads_in({});
    front->run();
    EXPECT_TRUE(posted_call_came);
    EXPECT_GE(runs, 4);
}

TEST_F(QtFrontLoop, The_desktops_quit_asks_and_does_not_end_the_program_itself) {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(application.requests, 1);
}

TEST_F(QtFrontLoop, A_number_has_a_point_whatever_the_locale) { EXPECT_STREQ(std::localeconv()->decimal_point, "."); }

}  // namespace
}  // namespace tavrik::front::qt
