#include "tests/fronts/qt/front_fixture.h"

#include <QFileOpenEvent>
#include <QHelpEvent>
#include <QToolTip>

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

TEST_F(QtFrontLoop, A_wake_up_comes_when_it_is_time_and_leaves_room_for_events) {
    int runs = 0;
    bool posted_call_came = false;
    application.when_woken = [&] {
        if (++runs == 2) front->post([&] { posted_call_came = true; });
        if (posted_call_came && runs >= 4) return front->quit();
        front->wake_in(std::chrono::milliseconds(runs == 1 ? 5 : 0));
    };
    front->wake_in({});
    front->run();
    EXPECT_TRUE(posted_call_came);
    EXPECT_GE(runs, 4);
}

TEST_F(QtFrontLoop, The_desktops_quit_asks_and_does_not_end_the_program_itself) {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(application.requests, 1);
}

TEST_F(QtFrontLoop, A_file_that_the_desktop_hands_over_is_a_document) {
    for (const char* const url : {"file:///maps/a%20b.map", "http://maps/c.map"}) {
        QFileOpenEvent open(QUrl{QLatin1String(url)});
        QCoreApplication::sendEvent(qApp, &open);
    }
    EXPECT_EQ(application.documents, std::vector<std::string>{"/maps/a b.map"});
}

TEST_F(QtFrontLoop, The_program_is_active_while_one_of_its_windows_is) {
    show();
    EXPECT_EQ(application.activations, std::vector<bool>{true});
    // The offscreen platform never takes the focus away by itself.
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive);
    EXPECT_EQ(application.activations, (std::vector<bool>{true, false}));
}

TEST_F(QtFrontLoop, A_cursor_lies_over_the_whole_program_until_it_is_taken_back) {
    front->set_cursor(Cursor{.shape = CursorShape::kWait});
    const std::vector<std::uint32_t> pixels(6, 0x80FF0000);
    front->set_cursor(Cursor{.image = std::make_shared<CursorImage>(CursorImage{3, 2, {2, 1}, pixels})});
    ASSERT_TRUE(QGuiApplication::overrideCursor());
    EXPECT_EQ(QGuiApplication::overrideCursor()->hotSpot(), QPoint(2, 1));
    EXPECT_EQ(QGuiApplication::overrideCursor()->pixmap().toImage().pixelColor(2, 1), QColor(255, 0, 0, 128));
    front->set_cursor(Cursor{.shape = CursorShape::kBlank});
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::BlankCursor);
    front->set_cursor(std::nullopt);
    EXPECT_FALSE(QGuiApplication::overrideCursor());
}

TEST_F(QtFrontLoop, Help_shows_unless_it_is_not_wanted) {
    show();
    window().setToolTip(QStringLiteral("a tip"));
    for (const bool visible : {true, false, true}) {
        front->set_help_visible(visible);
        QHelpEvent tip(QEvent::ToolTip, QPoint(5, 5), window().mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&window(), &tip);
        EXPECT_EQ(QToolTip::isVisible(), visible);
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    }
}

TEST_F(QtFrontLoop, A_number_has_a_point_whatever_the_locale) { EXPECT_STREQ(std::localeconv()->decimal_point, "."); }

}  // namespace
}  // namespace tavrik::front::qt
