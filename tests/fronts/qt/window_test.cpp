#include "tests/fronts/qt/front_fixture.h"

#include <QScreen>

namespace tavrik::front::qt {
namespace {

using QtWindow = QtFrontTest;

MenuDescription menu(MenuId id, std::string text) {
    MenuDescription menu;
    menu.id = id;
    menu.text = std::move(text);
    return menu;
}

TEST_F(QtWindow, Without_a_title_it_shows_the_programs_name) {
    description.title.clear();
    face->apply(description);
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Map Tool"));
}

TEST_F(QtWindow, Buttons_of_the_frame_are_as_told) {
    description.minimize_button = false;
    description.maximize_button = true;
    face->apply(description);
    EXPECT_TRUE(window().windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(window().windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_TRUE(window().windowFlags() & Qt::WindowMaximizeButtonHint);
}

TEST_F(QtWindow, The_frame_changes_while_the_window_is_shown) {
    show();
    description.close_button = false;
    face->apply(description);
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(window().windowFlags() & Qt::WindowCloseButtonHint);
}

TEST_F(QtWindow, The_same_state_again_moves_and_reports_nothing) {
    show();
    front->pump(false);
    window_listener.log.clear();
    const QRect before = window().geometry();
    face->apply(description);
    front->pump(false);
    EXPECT_EQ(window().geometry(), before);
    EXPECT_EQ(window_listener.log, Log{});
}

TEST_F(QtWindow, A_window_of_fixed_size_cannot_be_resized) {
    show();
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
}

TEST_F(QtWindow, A_resizable_window_keeps_within_the_limits_of_its_content) {
    description.resizable = true;
    description.min_width = 200;
    description.min_height = 100;
    description.max_width = 400;
    description.max_height = 300;
    show();
    window().resize(5000, 5000);
    EXPECT_EQ(window().content().size(), QSize(400, 300));
    window().resize(1, 1);
    EXPECT_EQ(window().content().size(), QSize(200, 100));
    EXPECT_EQ(window_listener.log.back(), "resized 200 100");
}

TEST_F(QtWindow, A_size_that_the_person_chose_outlives_a_change_of_the_menus) {
    description.resizable = true;
    show();
    window().resize(350, 200);
    face->apply_menus(std::vector{menu(1, "&File")});
    EXPECT_EQ(window().content().size(), QSize(350, 200));
}

TEST_F(QtWindow, Where_told_is_where_the_content_stands) {
    face->apply_menus(std::vector{menu(1, "&File")});
    description.placement = Placement::kWhereTold;
    description.content.left = 120;
    description.content.top = 140;
    show();
    EXPECT_EQ(window().content().mapToGlobal(QPoint()), QPoint(120, 140));
    description.content.left = 60;
    face->apply(description);
    EXPECT_EQ(window().content().mapToGlobal(QPoint()), QPoint(60, 140));
}

TEST_F(QtWindow, On_the_main_screen_it_opens_in_the_middle) {
    description.placement = Placement::kMainScreen;
    show();
    const QPoint off = window().geometry().center() - QGuiApplication::primaryScreen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
}

TEST_F(QtWindow, A_move_by_the_person_is_reported) {
    show();
    window_listener.log.clear();
    window().setGeometry(QRect(QPoint(33, 44), window().size()));
    EXPECT_EQ(window_listener.log, Log{"moved 33 44"});
}

TEST_F(QtWindow, Closing_is_asked_for_and_left_to_the_listener) {
    show();
    window().close();
    EXPECT_EQ(window_listener.log.back(), "close");
    EXPECT_TRUE(window().isVisible());
}

TEST_F(QtWindow, It_may_be_destroyed_while_it_asks_to_be_closed) {
    show();
    const QPointer<Window> widget(&window());
    window_listener.on_close = [this] { face.reset(); };
    front->post([this, widget] {
        widget->close();
        front->post([this] { front->quit(); });
    });
    front->run();
    EXPECT_FALSE(face);
    EXPECT_TRUE(widget.isNull());
}

TEST_F(QtWindow, Full_screen_takes_the_screen_and_gives_it_back) {
    show();
    description.full_screen = true;
    face->apply(description);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window().size() == window().screen()->size(); }));
    description.full_screen = false;
    face->apply(description);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window().content().size() == QSize(290, 119); }));
}

TEST_F(QtWindow, Coming_to_the_front_is_reported) {
    show();
    const auto second_listener = std::make_unique<RecordingWindow>();
    const auto second = front->make_window(*second_listener);
    second->apply(description);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&static_cast<QtWindowFace&>(*second).window()));
    window_listener.log.clear();
    face->bring_to_front();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(window_listener.log.back(), "active");
    EXPECT_EQ(second_listener->log.back(), "inactive");
}

}  // namespace
}  // namespace tavrik::front::qt
