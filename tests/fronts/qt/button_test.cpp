#include "tests/fronts/qt/front_fixture.h"

#include <QAccessible>

namespace tavrik::front::qt {
namespace {

class QtButton : public QtFrontTest {
protected:
    QtButton() {
        load = button_named("Load", {20, 13, 250, 20}, 0);
        null = button_named("Null", {20, 45, 250, 20}, 1);
        undo = button_named("Undo", {20, 77, 250, 20}, 2);
        for (RecordingButton& listener : listeners) faces.push_back(face->make_button(listener));
    }

    void show_buttons() {
        apply();
        show();
    }
    void apply() {
        faces[0]->apply(load);
        faces[1]->apply(null);
        faces[2]->apply(undo);
        front->pump(false);
    }
    void press_key(Qt::Key key) { QTest::keyClick(window().windowHandle(), key); }
    std::vector<int> presses() const { return {listeners[0].presses, listeners[1].presses, listeners[2].presses}; }

    ButtonDescription load, null, undo;
    RecordingButton listeners[3];
    std::vector<std::unique_ptr<ButtonFace>> faces;
};

TEST_F(QtButton, A_click_presses_it_once) {
    show_buttons();
    QTest::mouseClick(&widget("Null"), Qt::LeftButton);
    EXPECT_EQ(presses(), (std::vector{0, 1, 0}));
}

TEST_F(QtButton, A_mouse_released_elsewhere_presses_nothing) {
    show_buttons();
    QTest::mousePress(&widget("Null"), Qt::LeftButton);
    QTest::mouseRelease(&widget("Null"), Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(presses(), (std::vector{0, 0, 0}));
}

TEST_F(QtButton, A_disabled_one_cannot_be_pressed) {
    null.enabled = false;
    show_buttons();
    QTest::mouseClick(&widget("Null"), Qt::LeftButton);
    EXPECT_EQ(presses(), (std::vector{0, 0, 0}));
}

TEST_F(QtButton, Space_presses_the_focused_and_Return_the_default_one) {
    null.is_default = true;
    show_buttons();
    press_key(Qt::Key_Space);
    EXPECT_EQ(presses(), (std::vector{1, 0, 0}));
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Enter);
    EXPECT_EQ(presses(), (std::vector{1, 2, 0}));
}

TEST_F(QtButton, Escape_presses_the_cancel_button) {
    undo.is_cancel = true;
    show_buttons();
    press_key(Qt::Key_Escape);
    EXPECT_EQ(presses(), (std::vector{0, 0, 1}));
}

TEST_F(QtButton, Return_and_Escape_pass_by_a_button_that_cannot_be_used) {
    load.is_default = load.is_cancel = true;
    load.enabled = false;
    show_buttons();
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Escape);
    EXPECT_EQ(presses(), (std::vector{0, 0, 0}));
}

TEST_F(QtButton, A_mnemonic_presses_it) {
    load.caption = "&Load Map";
    show_buttons();
    QTest::keyClick(window().windowHandle(), Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return presses()[0] == 1; }));
}

TEST_F(QtButton, Tab_goes_in_the_order_of_the_tab_indices_and_of_creation_between_equals) {
    load.tab_index = 7;
    null.tab_index = undo.tab_index = 3;
    show_buttons();
    EXPECT_TRUE(listeners[1].focused);
    press_key(Qt::Key_Tab);
    EXPECT_TRUE(listeners[2].focused);
    press_key(Qt::Key_Tab);
    EXPECT_TRUE(listeners[0].focused);
    EXPECT_FALSE(listeners[2].focused);

    load.tab_index = 0;
    apply();
    press_key(Qt::Key_Tab);
    EXPECT_TRUE(listeners[1].focused);
}

TEST_F(QtButton, The_first_that_can_be_used_has_the_focus_at_first) {
    load.enabled = false;
    show_buttons();
    EXPECT_TRUE(listeners[1].focused);
}

TEST_F(QtButton, The_focus_moves_on_from_one_that_gets_disabled) {
    show_buttons();
    load.enabled = false;
    apply();
    EXPECT_FALSE(listeners[0].focused);
    EXPECT_TRUE(listeners[1].focused);
}

TEST_F(QtButton, The_focus_comes_back_to_a_window_that_had_nothing_to_use) {
    show_buttons();
    load.enabled = null.enabled = undo.enabled = false;
    apply();
    undo.enabled = true;
    apply();
    EXPECT_TRUE(listeners[2].focused);
}

TEST_F(QtButton, The_focus_can_be_set) {
    show_buttons();
    faces[2]->set_focus();
    EXPECT_TRUE(listeners[2].focused);
}

TEST_F(QtButton, Its_style_goes_over_the_desktops_font) {
    load.style = {"DejaVu Sans Mono", 14, true, false, true};
    show_buttons();
    const QFont font = widget("Load").font();
    EXPECT_EQ(font.family(), QStringLiteral("DejaVu Sans Mono"));
    EXPECT_EQ(font.pointSize(), 14);
    EXPECT_TRUE(font.bold() && font.underline() && !font.italic());
    EXPECT_EQ(widget("Null").font(), QApplication::font(&widget("Null")));
}

TEST_F(QtButton, Assistive_technology_reads_the_caption_and_the_help) {
    load.caption = "&Load Map";
    load.help = "Opens a map file";
    show_buttons();
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&widget("Load"));
    EXPECT_EQ(reader->role(), QAccessible::Button);
    EXPECT_EQ(reader->text(QAccessible::Name), QStringLiteral("Load Map"));
    EXPECT_EQ(reader->text(QAccessible::Description), QStringLiteral("Opens a map file"));
    EXPECT_EQ(widget("Load").toolTip(), QStringLiteral("Opens a map file"));
}

TEST_F(QtButton, Its_face_and_its_window_may_be_destroyed_while_it_is_pressed) {
    show_buttons();
    listeners[0].on_pressed = [this] {
        faces.erase(faces.begin());
        face.reset();
        faces.clear();
    };
    QTest::mouseClick(&widget("Load"), Qt::LeftButton);
    EXPECT_EQ(presses(), (std::vector{1, 0, 0}));
    EXPECT_FALSE(face);
}

TEST_F(QtButton, A_destroyed_face_takes_the_button_with_it) {
    show_buttons();
    faces.erase(faces.begin() + 1);
    EXPECT_FALSE(widget("Null").isVisible());
    EXPECT_TRUE(widget("Undo").isVisible());
}

}  // namespace
}  // namespace tavrik::front::qt
