#include "tests/fronts/qt/front_fixture.h"

#include <QAccessible>
#include <QTabBar>
#include <QTabWidget>

namespace tavrik::front::qt {
namespace {

struct RecordingTabs final : test::QuietControl, TabsListener {
    void tab_chosen(int tab) override { chosen.push_back(tab); }
    bool mouse_down(Point at, MouseButton) override {
        presses.push_back(at);
        return takes_presses;
    }
    bool key_down(const Key& key) override {
        keys.push_back(key.code);
        return takes_keys;
    }
    bool mouse_wheel(Point at, int, int) override {
        presses.push_back(at);
        return true;
    }
    void focus_changed(bool has_focus) override { focus.push_back(has_focus); }

    std::vector<int> chosen;
    std::vector<Point> presses;
    std::vector<int> keys;
    std::vector<bool> focus;
    bool takes_presses = false;
    bool takes_keys = false;
};

// Tabs with a button on the page in front.
class QtTabs : public QtFrontTest {
protected:
    QtTabs() {
        description.content = {0, 0, 400, 300};
        apply_tabs();
        button = tabs->make_button(button_listener, button_listener);
        button->apply({{.name = "Inside", .bounds = {150, 100, 100, 30}, .tab_index = 1}, "Inside"});
        show();
        front->pump(false);
    }

    void apply_tabs() {
        tabs->apply(told);
        front->pump(false);
    }
    QTabWidget& widget() { return *window().findChild<QTabWidget*>(QStringLiteral("Pages")); }
    QTabBar& bar() { return *widget().tabBar(); }
    void click_tab(int tab) { QTest::mouseClick(&bar(), Qt::LeftButton, {}, bar().tabRect(tab).center()); }
    void press_key(QKeyCombination key) {
        QTest::keyClick(window().windowHandle(), key.key(), key.keyboardModifiers());
    }

    RecordingTabs listener_of_tabs;
    RecordingButton button_listener;
    TabsDescription told{{.name = "Pages", .bounds = {20, 10, 360, 280}}, {"&General", "Colors && Fonts", "Last"}};
    std::unique_ptr<TabsFace> tabs = face->make_tabs(listener_of_tabs, listener_of_tabs);
    std::unique_ptr<ButtonFace> button;
};

TEST_F(QtTabs, A_click_on_a_tab_chooses_it_once_unless_the_program_takes_the_press_or_has_disabled_it) {
    click_tab(1);
    click_tab(1);
    listener_of_tabs.takes_presses = true;
    click_tab(2);
    listener_of_tabs.takes_presses = told.enabled = false;
    apply_tabs();
    click_tab(2);
    EXPECT_EQ(listener_of_tabs.chosen, std::vector{1});
    EXPECT_EQ(listener_of_tabs.presses.size(), 3U);
}

TEST_F(QtTabs, Keys_go_from_tab_to_tab_also_from_a_control_on_the_page) {
    bar().setFocus();
    const QKeyCombination keys[] = {
        Qt::Key_Right,
        Qt::Key_Left,
        Qt::CTRL | Qt::Key_Tab,
        Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab,
        Qt::CTRL | Qt::Key_PageDown,
        Qt::CTRL | Qt::Key_PageUp,
    };
    for (const QKeyCombination key : keys) press_key(key);
    EXPECT_EQ(listener_of_tabs.chosen, (std::vector{1, 0, 1, 0, 1, 0}));
    EXPECT_EQ(listener_of_tabs.keys.size(), 4U) << "each told once, and the Tab key never";

    listener_of_tabs.chosen.clear();
    button->set_focus();
    press_key(Qt::CTRL | Qt::Key_PageUp);
    press_key(Qt::CTRL | Qt::Key_Tab);
    EXPECT_EQ(listener_of_tabs.chosen, (std::vector{2, 0})) << "round the ends";
    EXPECT_EQ(listener_of_tabs.keys.size(), 4U) << "those were for the button";

    tabs->set_focus();
    listener_of_tabs.takes_keys = true;
    press_key(Qt::Key_Right);
    EXPECT_EQ(listener_of_tabs.chosen.size(), 2U);
    EXPECT_EQ(listener_of_tabs.focus.back(), true);
}

TEST_F(QtTabs, The_Tab_key_goes_through_the_tabs_then_the_page_then_on) {
    RecordingButton listeners[2];
    std::unique_ptr<ButtonFace> outside[2];
    for (int i = 0; i < 2; ++i) {
        outside[i] = face->make_button(listeners[i], listeners[i]);
        outside[i]->apply({{.name = "Outside", .bounds = {0, 270 * i, 20, 20}, .tab_index = i}, ""});
    }
    told.tab_index = 1;
    tabs->apply(told);
    outside[1]->apply({{.bounds = {0, 270, 20, 20}, .tab_index = 2}, ""});
    front->pump(false);
    outside[0]->set_focus();
    const auto where = [&] {
        return Log{listeners[0].focused ? "first" : "", bar().hasFocus() ? "tabs" : "",
                   button_listener.focused ? "inside" : "", listeners[1].focused ? "last" : ""};
    };
    const Log steps[] = {{"first", "", "", ""}, {"", "tabs", "", ""}, {"", "", "inside", ""}, {"", "", "", "last"}};
    for (const Log& step : steps) {
        EXPECT_EQ(where(), step);
        press_key(Qt::Key_Tab);
    }
    press_key(Qt::SHIFT | Qt::Key_Backtab);
    EXPECT_EQ(where(), steps[3]);
    press_key(Qt::SHIFT | Qt::Key_Backtab);
    EXPECT_EQ(where(), steps[2]);
}

TEST_F(QtTabs, What_lies_in_them_stands_where_it_was_put_and_can_be_reached) {
    for (const TabSide side : {TabSide::kTop, TabSide::kBottom, TabSide::kRight, TabSide::kLeft}) {
        told.side = side;
        apply_tabs();
        QPushButton& inside = QtFrontTest::widget("Inside");
        EXPECT_EQ(inside.mapTo(&widget(), QPoint()), QPoint(150, 100));
        const int presses = button_listener.presses;
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, inside.mapTo(&window(), QPoint(50, 15)));
        EXPECT_EQ(button_listener.presses, presses + 1);
        const QPoint middle = bar().mapTo(&widget(), bar().tabRect(2).center());
        EXPECT_EQ(tabs->tab_at({middle.x(), middle.y()}), 2);
        EXPECT_EQ(tabs->tab_at({150, 100}), -1);
    }
    const QRect place = bar().geometry();
    EXPECT_LT(place.right(), 150) << "the tabs are on the left";
}

TEST_F(QtTabs, The_mouse_is_told_from_the_corner_of_the_whole) {
    told.side = TabSide::kBottom;
    apply_tabs();
    click_tab(0);
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, widget().mapTo(&window(), QPoint(30, 60)));
    const QPoint expected = bar().mapTo(&widget(), bar().tabRect(0).center());
    EXPECT_EQ(listener_of_tabs.presses, (std::vector<Point>{{expected.x(), expected.y()}, {30, 60}}));
}

TEST_F(QtTabs, Captions_are_what_a_person_reads_and_hears) {
    told.captions = {"&General", "Colors && Fonts"};
    told.chosen = 1;
    apply_tabs();
    QAccessibleInterface* const row = QAccessible::queryAccessibleInterface(&bar());
    ASSERT_GE(row->childCount(), 2);
    EXPECT_EQ(row->child(0)->text(QAccessible::Name), QStringLiteral("General"));
    EXPECT_EQ(row->child(1)->text(QAccessible::Name), QStringLiteral("Colors & Fonts"));
    EXPECT_EQ(bar().currentIndex(), 1);
    EXPECT_TRUE(listener_of_tabs.chosen.empty()) << "the program knows of what it does itself";
    press_key(Qt::ALT | Qt::Key_G);
    EXPECT_TRUE(QTest::qWaitFor([&] { return listener_of_tabs.chosen == std::vector{0}; }));
}

TEST_F(QtTabs, Small_ones_take_less_room_and_a_style_counts) {
    const int height = bar().sizeHint().height();
    told.small = true;
    apply_tabs();
    EXPECT_LT(bar().sizeHint().height(), height);
    told.style = {.size = 30, .bold = true};
    apply_tabs();
    EXPECT_GT(bar().sizeHint().height(), height);
    EXPECT_TRUE(bar().font().bold());
}

}  // namespace
}  // namespace tavrik::front::qt
