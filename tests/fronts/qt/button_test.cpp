#include "tests/fronts/qt/front_fixture.h"

#include <QAccessible>

namespace tavrik::front::qt {
namespace {

class QtButton : public QtFrontTest {
protected:
    QtButton() {
        for (RecordingButton& button : listeners) faces.push_back(face->make_button(button, button));
    }

    void apply_buttons() {
        for (std::size_t i = 0; i < faces.size(); ++i) faces[i]->apply(*buttons[i]);
        front->pump(false);
    }
    void show_buttons() {
        apply_buttons();
        show();
    }
    void press_key(QKeyCombination key) {
        QTest::keyClick(window().windowHandle(), key.key(), key.keyboardModifiers());
    }
    std::vector<int> presses() const { return {listeners[0].presses, listeners[1].presses, listeners[2].presses}; }
    std::vector<bool> focus() const { return {listeners[0].focused, listeners[1].focused, listeners[2].focused}; }

    ButtonDescription load{{.name = "Load", .bounds = {20, 13, 250, 20}, .tab_index = 0}, "&Load Map"};
    ButtonDescription null{{.name = "Null", .bounds = {20, 45, 250, 20}, .tab_index = 1}, "Null"};
    ButtonDescription undo{{.name = "Undo", .bounds = {20, 77, 250, 20}, .tab_index = 2}, "Undo"};
    ButtonDescription* const buttons[3] = {&load, &null, &undo};
    RecordingButton listeners[3];
    std::vector<std::unique_ptr<ButtonFace>> faces;
};

const std::vector<bool> kFirst{true, false, false}, kSecond{false, true, false}, kThird{false, false, true};

TEST_F(QtButton, A_click_presses_it_once_unless_released_elsewhere_or_disabled) {
    undo.enabled = false;
    show_buttons();
    QTest::mouseClick(&widget("Null"), Qt::LeftButton);
    QTest::mousePress(&widget("Null"), Qt::LeftButton);
    QTest::mouseRelease(&widget("Null"), Qt::LeftButton, {}, QPoint(-20, -20));
    QTest::mouseClick(&widget("Undo"), Qt::LeftButton);
    EXPECT_EQ(presses(), (std::vector{0, 1, 0}));
}

TEST_F(QtButton, A_key_presses_the_focused_the_default_or_the_cancel_button_or_that_of_its_letter) {
    null.is_default = undo.is_cancel = true;
    show_buttons();
    const std::pair<QKeyCombination, std::vector<int>> keys[] = {
        {Qt::Key_Space, {1, 0, 0}},  {Qt::Key_Return, {1, 1, 0}},      {Qt::Key_Enter, {1, 2, 0}},
        {Qt::Key_Escape, {1, 2, 1}}, {Qt::ALT | Qt::Key_L, {2, 2, 1}},
    };
    for (const auto& [key, expected] : keys) {
        press_key(key);
        EXPECT_TRUE(QTest::qWaitFor([&, want = expected] { return presses() == want; })) << key.key();
    }
    null.enabled = undo.enabled = false;
    apply_buttons();
    press_key(Qt::Key_Return);
    press_key(Qt::Key_Escape);
    EXPECT_EQ(presses(), (std::vector{2, 2, 1}));
}

TEST_F(QtButton, Tab_goes_in_the_order_of_the_tab_indices_and_of_creation_between_equals) {
    load.tab_index = 7;
    null.tab_index = undo.tab_index = 3;
    show_buttons();
    EXPECT_EQ(focus(), kSecond);
    press_key(Qt::Key_Tab);
    EXPECT_EQ(focus(), kThird);
    press_key(Qt::Key_Tab);
    EXPECT_EQ(focus(), kFirst);
    load.tab_index = 0;
    apply_buttons();
    press_key(Qt::Key_Tab);
    EXPECT_EQ(focus(), kSecond);
}

TEST_F(QtButton, The_focus_goes_to_one_that_can_be_used) {
    load.enabled = false;
    show_buttons();
    EXPECT_EQ(focus(), kSecond);
    null.enabled = false;
    apply_buttons();
    EXPECT_EQ(focus(), kThird);
    undo.enabled = false;
    apply_buttons();
    load.enabled = null.enabled = true;
    apply_buttons();
    EXPECT_EQ(focus(), kFirst);
    faces[1]->set_focus();
    EXPECT_EQ(focus(), kSecond);
}

TEST_F(QtButton, It_is_shown_in_its_style_and_read_with_its_help) {
    load.style = {"DejaVu Sans Mono", 14, true, false, true};
    load.help = "Opens a map file";
    show_buttons();
    const QFont font = widget("Load").font();
    EXPECT_EQ(font.family(), QStringLiteral("DejaVu Sans Mono"));
    EXPECT_TRUE(font.pointSize() == 14 && font.bold() && font.underline() && !font.italic());
    EXPECT_EQ(widget("Null").font(), QApplication::font(&widget("Null")));
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&widget("Load"));
    EXPECT_EQ(reader->text(QAccessible::Name), QStringLiteral("Load Map"));
    EXPECT_EQ(reader->text(QAccessible::Description), QStringLiteral("Opens a map file"));
}

TEST_F(QtButton, Its_face_and_its_window_may_be_destroyed_while_it_is_pressed) {
    show_buttons();
    listeners[0].on_pressed = [this] {
        faces.erase(faces.begin());
        EXPECT_FALSE(widget("Load").isVisible());
        EXPECT_TRUE(widget("Undo").isVisible());
        face.reset();
        faces.clear();
    };
    QTest::mouseClick(&widget("Load"), Qt::LeftButton);
    EXPECT_EQ(presses(), (std::vector{1, 0, 0}));
    EXPECT_FALSE(face);
}

}  // namespace
}  // namespace tavrik::front::qt
