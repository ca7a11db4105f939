#include "tests/fronts/qt/front_fixture.h"

#include <QStyle>
#include <QStyleOptionButton>

namespace tavrik::front::qt {
namespace {

// Runs at several scale factors: what fits in one has to fit in each.
class QtLayout : public QtFrontTest {
protected:
    static constexpr int kPitch = 32;

    void add(const std::string& caption, Rect bounds) {
        faces_.push_back(face->make_button(listener_));
        faces_.back()->apply(button_named(caption, bounds));
    }

    static QRect room_for_caption(const QPushButton& button) {
        QStyleOptionButton option;
        option.initFrom(&button);
        return button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    }

    RecordingButton listener_;
    std::vector<std::unique_ptr<ButtonFace>> faces_;
};

TEST_F(QtLayout, The_content_has_its_size_whatever_the_menu_bar_takes) {
    MenuDescription menu;
    menu.text = "&File";
    face->apply_menus(std::vector{menu});
    show();
    EXPECT_EQ(window().content().size(), QSize(290, 119));
    EXPECT_GT(window().height(), 119);

    description.menu_bar_visible = false;
    face->apply(description);
    EXPECT_EQ(window().content().size(), QSize(290, 119));
    EXPECT_EQ(window().height(), 119);
}

TEST_F(QtLayout, Three_buttons_drawn_close_are_whole_and_apart) {
    const char* const captions[] = {"Load Map", "Null BSP", "Un-do Null"};
    for (int i = 0; i < 3; ++i) add(captions[i], {20, 13 + kPitch * i, 250, 20});
    show();

    int last_bottom = 0;
    for (const char* caption : captions) {
        const QPushButton& button = widget(caption);
        EXPECT_GE(button.y(), last_bottom + 2);
        EXPECT_GE(button.height(), button.fontMetrics().height());
        EXPECT_EQ(button.text(), QLatin1String(caption));
        EXPECT_GE(room_for_caption(button).width(), button.fontMetrics().horizontalAdvance(button.text()));
        last_bottom = button.y() + button.height();
    }
    EXPECT_LE(last_bottom, 119);
}

TEST_F(QtLayout, A_narrow_button_grows_where_it_can) {
    add("A caption of some length", {20, 13, 40, 20});
    show();
    const QPushButton& button = widget("A caption of some length");
    EXPECT_GE(room_for_caption(button).width(), button.fontMetrics().horizontalAdvance(button.text()));
}

TEST_F(QtLayout, A_narrow_button_with_a_neighbour_shortens_its_caption_and_tells_it_in_full) {
    add("A caption of some length", {20, 13, 60, 20});
    add("Next", {90, 13, 60, 20});
    show();
    const QPushButton& button = widget("A caption of some length");
    EXPECT_EQ(button.width(), 60);
    EXPECT_LE(button.fontMetrics().horizontalAdvance(button.text()), room_for_caption(button).width());
    EXPECT_EQ(button.accessibleName(), QStringLiteral("A caption of some length"));
    EXPECT_EQ(button.toolTip(), QStringLiteral("A caption of some length"));
}

}  // namespace
}  // namespace tavrik::front::qt
