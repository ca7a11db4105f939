#include "tests/fronts/qt/core/qt_core_test.h"
#include "ui/canvas.h"
#include "ui/container_control.h"
#include "ui/push_button.h"
#include "ui/tab_panel.h"

#include <QAccessible>
#include <QTest>
#include <QWidget>
#include <gmock/gmock.h>

namespace tavrik::test {
namespace {

using testing::Pair;
using testing::UnorderedElementsAre;
using Reader = std::pair<std::string, QAccessible::Role>;

template <class Kind>
Ref<Kind> add(const Ref<Window>& window, const String& name) {
    const auto control = make<Kind>();
    control->_Move(10, 40, 100, 30);
    window->_AddControl(name, control);
    return control;
}

// Tabs with a canvas and a container on the page, and a button in the container.
class QtReaders : public QtCoreTest {
protected:
    QtReaders() {
        window_->_Move(0, 0, 400, 300);
        const auto tabs = add<TabPanel>(window_, "Pages"_s);
        tabs->_Move(0, 0, 400, 300);
        tabs->Append("&First"_s);
        const auto canvas = add<Canvas>(window_, "Board"_s);
        canvas->set_AcceptFocus(true);
        canvas->set_Parent(tabs);
        const auto container = make<ContainerControl>();
        container->Window_();
        add<PushButton>(container, "Count"_s)->set_Caption("Apples: &0"_s);
        container->EmbedWithinPanel(tabs, 0, 10, 100, 200, 100);
        window_->Show();
        core::front().pump(false);
    }

    // What a reader hears when the focus comes to each widget that takes it.
    std::vector<Reader> heard_on_focus() {
        std::vector<Reader> heard;
        for (QWidget* const widget : shown_window().findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus || widget->focusProxy()) continue;
            QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(widget);
            heard.emplace_back(reader->text(QAccessible::Name).toStdString(), reader->role());
        }
        return heard;
    }
};

TEST_F(QtReaders, Hear_a_name_and_a_fitting_role_wherever_the_focus_goes) {
    EXPECT_THAT(heard_on_focus(),
                UnorderedElementsAre(Pair("First", QAccessible::PageTabList), Pair("Board", QAccessible::Canvas),
                                     Pair("Apples: 0", QAccessible::Button)));
}

TEST_F(QtReaders, Hear_of_a_canvas_without_focus_as_the_ground_of_others) {
    auto* const host = shown_window().findChild<QWidget*>(QStringLiteral("ContainerControl"));
    ASSERT_TRUE(host);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(host)->role(), QAccessible::Pane);
}

TEST_F(QtReaders, See_the_focus_around_a_canvas_and_what_is_drawn_inside) {
    auto* const canvas = shown_window().findChild<QWidget*>(QStringLiteral("Board"));
    ASSERT_TRUE(canvas);
    const QImage before = canvas->grab().toImage();
    canvas->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return canvas->hasFocus(); }));
    const QImage after = canvas->grab().toImage();
    EXPECT_NE(after.pixel(0, 0), before.pixel(0, 0));
    EXPECT_EQ(after.pixel(10, 10), before.pixel(10, 10));
}

}  // namespace
}  // namespace tavrik::test
