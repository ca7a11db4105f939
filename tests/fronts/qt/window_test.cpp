#include "tests/fronts/qt/front_fixture.h"

namespace tavrik::front::qt {
namespace {

using QtWindow = QtFrontTest;

const MenuDescription kFile{.id = 1, .text = "&File"};

TEST_F(QtWindow, Its_frame_may_change_while_it_is_shown) {
    show();
    description.close_button = description.minimize_button = false;
    description.maximize_button = true;
    apply();
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(window().windowFlags() & (Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint));
    EXPECT_TRUE(window().windowFlags() & Qt::WindowMaximizeButtonHint);
}

TEST_F(QtWindow, The_same_state_again_moves_and_reports_nothing) {
    show();
    front->pump(false);
    listener.log.clear();
    const QRect before = window().geometry();
    apply();
    front->pump(false);
    EXPECT_EQ(window().geometry(), before);
    EXPECT_EQ(listener.log, Log{});
}

TEST_F(QtWindow, The_person_sizes_its_content_within_the_limits) {
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
    EXPECT_EQ(listener.log.back(), "resized 200 100");
    face->apply_menus({&kFile, 1});
    EXPECT_EQ(window().content().size(), QSize(200, 100));
}

TEST_F(QtWindow, Where_told_is_where_the_content_stands_until_the_person_moves_it) {
    face->apply_menus({&kFile, 1});
    description.placement = Placement::kWhereTold;
    description.content.top = 140;
    show();
    for (const int left : {120, 60}) {
        description.content.left = left;
        apply();
        EXPECT_EQ(window().content().mapToGlobal(QPoint()), QPoint(left, 140));
    }
    listener.log.clear();
    window().setGeometry(window().geometry().translated(-27, 3));
    EXPECT_EQ(listener.log, Log{"moved 33 143"});
}

}  // namespace
}  // namespace tavrik::front::qt
