#include "tests/fronts/qt/front_fixture.h"

#include <QStyle>
#include <QStyleOptionButton>

namespace tavrik::front::qt {
namespace {

// Runs at several scale factors: what fits in one has to fit in each.
class QtLayout : public QtFrontTest {
protected:
    void add(const std::string& caption, Rect bounds) {
        faces_.push_back(face->make_button(listener_, listener_));
        faces_.back()->apply({{.name = caption, .bounds = bounds}, caption});
    }

    static bool caption_fits(const QPushButton& button) {
        QStyleOptionButton option;
        option.initFrom(&button);
        return button.fontMetrics().horizontalAdvance(button.text()) <=
               button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button).width();
    }

    RecordingButton listener_;
    std::vector<std::unique_ptr<ButtonFace>> faces_;
};

TEST_F(QtLayout, The_content_has_its_size_whatever_the_menu_bar_takes) {
    face->apply_menus(std::vector<MenuDescription>{{.text = "&File"}});
    show();
    EXPECT_EQ(window().content().size(), QSize(290, 119));
    EXPECT_GT(window().height(), 119);

    description.menu_bar_visible = false;
    apply();
    EXPECT_EQ(window().content().size(), QSize(290, 119));
    EXPECT_EQ(window().height(), 119);
}

TEST_F(QtLayout, Three_buttons_drawn_close_are_whole_and_apart) {
    const char* const captions[] = {"Load Map", "Null BSP", "Un-do Null"};
    for (int top = 13; const char* caption : captions) {
        add(caption, {20, top, 250, 20});
        top += 32;
    }
    show();

    int last_bottom = 0;
    for (const char* caption : captions) {
        const QPushButton& button = widget(caption);
        EXPECT_GE(button.y(), last_bottom + 2);
        EXPECT_GE(button.height(), button.fontMetrics().height());
        EXPECT_EQ(button.text(), QLatin1String(caption));
        EXPECT_TRUE(caption_fits(button));
        last_bottom = button.y() + button.height();
    }
    EXPECT_LE(last_bottom, 119);
}

TEST_F(QtLayout, A_narrow_button_grows_where_it_can_or_else_shortens_its_caption) {
    add("A caption with room", {20, 13, 40, 20});
    add("A caption of some length", {20, 53, 60, 20});
    add("Next", {90, 53, 60, 20});
    show();
    EXPECT_TRUE(caption_fits(widget("A caption with room")));
    EXPECT_EQ(widget("A caption with room").text(), QStringLiteral("A caption with room"));
    const QPushButton& shortened = widget("A caption of some length");
    EXPECT_EQ(shortened.width(), 60);
    EXPECT_TRUE(caption_fits(shortened));
    EXPECT_EQ(shortened.accessibleName(), QStringLiteral("A caption of some length"));
    EXPECT_EQ(shortened.toolTip(), QStringLiteral("A caption of some length"));
}

}  // namespace
}  // namespace tavrik::front::qt
