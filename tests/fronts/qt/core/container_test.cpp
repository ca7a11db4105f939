#include "tests/fronts/qt/core/qt_core_test.h"
#include "toolkit/core/window_list.h"
#include "ui/container_control.h"
#include "ui/push_button.h"

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>

namespace tavrik::test {
namespace {

using testing::ElementsAre;

std::vector<std::string> heard;

bool pressed(Object*, std::int32_t x, std::int32_t y) {
    heard.push_back("press " + std::to_string(x) + ' ' + std::to_string(y));
    return true;
}
void released(Object*, std::int32_t x, std::int32_t y) {
    heard.push_back("release " + std::to_string(x) + ' ' + std::to_string(y));
}
void acted(Object*) { heard.emplace_back("action"); }
void entered(Object*) { heard.emplace_back("enter"); }
void left(Object*) { heard.emplace_back("exit"); }
bool container_key(Object*, const String& key) {
    heard.push_back("container " + std::string(key.view()));
    return key.view() == "c";
}
bool window_key(Object*, const String& key) {
    heard.push_back("window " + std::string(key.view()));
    return true;
}

template <class F>
void listen(const Ref<Object>& object, const char* event, F* handler) {
    RuntimeInstallInstanceEventHandler(object.object(), String(std::string_view(event)),
                                       reinterpret_cast<Function>(handler));
}

Ref<PushButton> add_button(const Ref<Window>& window, const char* name, std::int32_t tab_index) {
    const Ref<PushButton> button = make<PushButton>();
    button->set_Name(String(std::string_view(name)));
    button->_Move(10, 5 + 40 * tab_index, 100, 30);
    button->set_TabIndex(tab_index);
    window->_AddControl(button->Name(), button);
    return button;
}

// A window with a button before and one behind a container, which has one too.
class QtContainers : public QtCoreTest {
protected:
    QtContainers() {
        window_->_Move(0, 0, 300, 300);
        container_ = make<ContainerControl>();
        container_->Window_();
        add_button(window_, "Before", 0);
        add_button(container_, "Inner", 0);
        container_->set_TabIndex(1);
        container_->set_AcceptFocus(true);
        container_->EmbedWithin(window_, 20, 100, 200, 150);
        add_button(window_, "Behind", 6)->set_TabIndex(2);
        window_->Show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(shown("Before").window()));
    }
    ~QtContainers() override {
        core::close_all_windows(core::AppIsQuitting::kNoMatterWhat);
        container_ = nullptr;
        heard.clear();
    }

    static QWidget& shown(const char* name) {
        for (QWidget* const widget : QApplication::allWidgets()) {
            if (widget->objectName() == QLatin1String(name) && widget->isVisible()) return *widget;
        }
        throw std::out_of_range(name);
    }
    static void press_key(char key) { QTest::keyClick(shown("Before").window()->windowHandle(), key); }

    Ref<ContainerControl> container_;
};

TEST_F(QtContainers, A_click_reaches_what_lies_at_the_place) {
    const Ref<Object> button = container_->_GetControl("Inner"_s);
    listen(button, "Action", acted);
    listen(container_, "MouseDown", pressed);
    listen(container_, "MouseUp", released);
    QWindow* const screen = shown("Before").window()->windowHandle();
    const auto in_container = [&](int x, int y) {
        return shown("ContainerControl").mapTo(shown("Before").window(), QPoint(x, y));
    };
    QTest::mouseClick(screen, Qt::LeftButton, {}, in_container(60, 20));
    EXPECT_THAT(std::exchange(heard, {}), ElementsAre("action"));
    QTest::mouseClick(screen, Qt::LeftButton, {}, in_container(150, 120));
    EXPECT_THAT(heard, ElementsAre("press 150 120", "release 150 120"));
}

TEST_F(QtContainers, The_pointer_enters_and_leaves_a_control_in_a_container) {
    const Ref<Object> button = container_->_GetControl("Inner"_s);
    listen(button, "MouseEnter", entered);
    listen(button, "MouseExit", left);
    QTest::mouseMove(&shown("ContainerControl"), QPoint(150, 120));
    QTest::mouseMove(&shown("Inner"), QPoint(20, 10));
    QTest::mouseMove(&shown("Before"), QPoint(5, 5));
    EXPECT_TRUE(QTest::qWaitFor([] { return heard.size() == 2; }));
    EXPECT_THAT(heard, ElementsAre("enter", "exit"));
}

TEST_F(QtContainers, Tab_goes_through_it_and_keys_that_it_leaves_go_to_the_window) {
    listen(container_, "KeyDown", container_key);
    listen(window_, "KeyDown", window_key);
    shown("Before").setFocus();
    const char* const order[] = {"ContainerControl", "Inner", "Behind"};
    for (const char* const name : order) {
        QTest::keyClick(shown("Before").window()->windowHandle(), Qt::Key_Tab);
        EXPECT_TRUE(QTest::qWaitFor([&] { return shown(name).hasFocus(); })) << name;
        press_key('c');
        press_key('w');
    }
    EXPECT_THAT(heard, ElementsAre("container c", "container w", "window w", "container c", "container w", "window w",
                                   "window c", "window w"));
}

TEST_F(QtContainers, Its_widgets_go_with_it_from_inside_a_press) {
    const Ref<Object> button = container_->_GetControl("Inner"_s);
    static ContainerControl* closed_by_press = nullptr;
    closed_by_press = container_.get();
    void (*close)(Object*) = [](Object*) { closed_by_press->Close(); };
    listen(button, "Action", close);
    QTest::mouseClick(&shown("Inner"), Qt::LeftButton);
    EXPECT_FALSE(core::is_open(container_.object()));
    EXPECT_THROW(shown("ContainerControl"), std::out_of_range);
    EXPECT_THROW(shown("Inner"), std::out_of_range);
}

}  // namespace
}  // namespace tavrik::test
