#include "tests/fronts/qt/core/qt_core_test.h"
#include "ui/canvas.h"
#include "ui/push_button.h"
#include "ui/tab_panel.h"

#include <QApplication>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <functional>
#include <string>
#include <vector>

namespace tavrik::test {
namespace {

using Int = std::int32_t;

template <class Kind>
Ref<Kind> add(const Ref<Window>& window, std::string_view name, front::Rect bounds) {
    const auto control = make<Kind>();
    control->_Move(bounds.left, bounds.top, bounds.width, bounds.height);
    window->_AddControl(String(name), control);
    return control;
}

// A window with two buttons, a canvas in a canvas, and two tabs.
class ControlWalk : public QtCoreTest {
protected:
    ControlWalk() {
        window_->_Move(0, 0, 400, 300);
        window_->set_Resizeable(true);
        tabs_->Append("one"_s);
        tabs_->Append("two"_s);
        window_->Show();
        core::front().pump(false);
    }
    ~ControlWalk() override {
        for (const Ref<RectControl>& control : controls_) control->set_Parent(nullptr);
    }

    const Ref<RectControl>& any() { return controls_[static_cast<std::size_t>(random(int(controls_.size())))]; }

    void step() {
        const Ref<RectControl>& control = any();
        switch (random(12)) {
            case 0:
                return control->set_Left(random(300));
            case 1:
                return control->set_Top(random(200));
            case 2:
                return control->set_Width(60 + random(200));
            case 3:
                return control->set_Height(random(100));
            case 4:
                return control->set_Enabled(!control->Enabled());
            case 5:
                return control->set_Visible(!control->Visible());
            case 6:
                return control->set_HelpTag(String("help " + std::to_string(random(9))));
            case 7:
                return button_->set_Caption(String("caption " + std::to_string(random(99))));
            case 8:
                return tabs_->set_Value(random(tabs_->PanelCount()));
            case 9:
                return control->set_TabPanelIndex(random(3));
            case 10:
                return random(2) == 0 ? window_->set_Width(300 + random(200)) : window_->set_Height(200 + random(200));
            default:
                return move_into(control, random(3) == 0 ? nullptr : any());
        }
    }

    // Not into a button, which may be taller than its rectangle.
    static void move_into(const Ref<RectControl>& control, const Ref<RectControl>& parent) {
        if (is_a<PushButton>(parent)) return;
        for (Ref<RectControl> above = parent; above; above = above->Parent()) {
            if (above == control) return;
        }
        control->set_Parent(parent);
    }

    bool is_on_shown_page(const Ref<RectControl>& control) {
        return control->Parent() != tabs_ || control->TabPanelIndex() == tabs_->Value();
    }

    void expect_agreement() {
        const front::qt::Content& content = shown_window().content();
        EXPECT_EQ(content.width(), window_->Width());
        EXPECT_EQ(content.height(), window_->Height());
        for (const Ref<RectControl>& control : controls_) {
            const std::string name(control->Name().view());
            SCOPED_TRACE(name);
            const auto* const widget = content.findChild<QWidget*>(QString::fromStdString(name));
            ASSERT_TRUE(widget);
            EXPECT_NE(widget->isHidden(), control->Visible() && is_on_shown_page(control));
            const QWidget& outer = *widget->parentWidget();
            EXPECT_EQ(outer.objectName().toStdString(), control->Parent()
                                                            ? std::string(control->Parent()->Name().view())
                                                            : content.objectName().toStdString());
            EXPECT_EQ(widget->isEnabledTo(&outer), control->Enabled());
            EXPECT_TRUE(widget->toolTip().endsWith(QString::fromUtf8(control->HelpTag().view().data())));
            if (!widget->isVisibleTo(&content)) continue;  // what nobody sees is placed when it appears
            EXPECT_EQ(widget->mapTo(&content, QPoint()).x(), control->Left());
            if (is_a<PushButton>(control)) continue;  // may be as tall as the desktop's are
            EXPECT_EQ(widget->mapTo(&content, QPoint()).y(), control->Top());
            EXPECT_EQ(widget->size(), QSize(control->Width(), control->Height()));
        }
        EXPECT_EQ(content.findChild<QPushButton*>(QStringLiteral("button"))->text().toStdString(),
                  button_->Caption().view());
        const auto* const tabs = content.findChild<QTabWidget*>(QStringLiteral("tabs"));
        EXPECT_EQ(tabs->count(), tabs_->PanelCount());
        EXPECT_EQ(tabs->currentIndex(), tabs_->Value());
    }

    const Ref<PushButton> button_ = add<PushButton>(window_, "button", {10, 10, 200, 20});
    const Ref<TabPanel> tabs_ = add<TabPanel>(window_, "tabs", {150, 40, 200, 150});
    const Ref<Canvas> canvas_ = add<Canvas>(window_, "canvas", {10, 50, 100, 100});
    const std::vector<Ref<RectControl>> controls_ = {button_, tabs_, canvas_,
                                                     add<Canvas>(window_, "inner", {20, 60, 70, 20}),
                                                     add<PushButton>(window_, "other", {10, 200, 200, 20})};
};

TEST_F(ControlWalk, Qt_shows_what_the_core_says_after_every_step) {
    for (int i = 0; i < 400 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        step();
        core::front().pump(false);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        expect_agreement();
    }
}

// ---- What ends inside of its own event

void close_window(Object* self) { static_cast<Control*>(self)->Window()->Close(); }

struct Deed {
    const char* control;
    const char* event;
    Function closes;
    std::function<void(QWidget&)> act;
};

template <class R, class... A>
Function closing() {
    constexpr auto handler = +[](Object* self, A...) {
        close_window(self);
        return R();
    };
    return reinterpret_cast<Function>(handler);
}

TEST_F(ControlWalk, A_window_may_end_inside_of_every_event_that_the_person_causes) {
    const auto click = [](QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); };
    const auto press_key = [](QWidget& widget) { QTest::keyClick(&widget, Qt::Key_A); };
    const auto ask_for_menu = [](QWidget& widget) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&widget, &event);
    };
    const auto turn_wheel = [](QWidget& widget) {
        QWheelEvent event({5, 5}, widget.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
    };
    const auto move = [](QWidget& widget) {
        QMouseEvent event(QEvent::MouseMove, {9, 9}, widget.mapToGlobal(QPointF(9, 9)), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    };
    const auto drag = [](QWidget& widget) {
        QTest::mousePress(&widget, Qt::LeftButton);
        QTest::mouseMove(&widget, {7, 7});
        QTest::mouseRelease(&widget, Qt::LeftButton);
    };
    const Deed deeds[] = {
        {"button", "Action", closing<void>(), click},
        {"button", "MouseDown", closing<bool, Int, Int>(), click},
        {"button", "KeyDown", closing<bool, const String&>(), press_key},
        {"button", "LostFocus", closing<void>(), [](QWidget& widget) { widget.clearFocus(); }},
        {"canvas", "GotFocus", closing<void>(),
         [](QWidget& widget) {
             widget.clearFocus();
             widget.setFocus();
         }},
        {"canvas", "MouseDown", closing<bool, Int, Int>(), click},
        {"canvas", "MouseMove", closing<void, Int, Int>(), move},
        {"canvas", "MouseWheel", closing<bool, Int, Int, Int, Int>(), turn_wheel},
        {"canvas", "KeyDown", closing<bool, const String&>(), press_key},
        {"canvas", "ConstructContextualMenu", closing<bool, Object*, Int, Int>(), ask_for_menu},
        {"canvas", "MouseDrag", closing<void, Int, Int>(), drag},
        {"canvas", "MouseUp", closing<void, Int, Int>(), drag},
        {"tabs", "Change", closing<void>(),
         [](QWidget& widget) { QTest::keyClick(&widget, Qt::Key_PageDown, Qt::ControlModifier); }},
    };
    constexpr auto takes_press = +[](Object*, Int, Int) { return true; };
    for (const auto& [control, event, closes, act] : deeds) {
        SCOPED_TRACE(std::string(control) + '.' + event);
        Window* const window = [&] {
            const Ref<Window> opened = make<Window>();
            opened->_Move(0, 0, 400, 300);
            opened->Window_();
            const auto canvas = add<Canvas>(opened, "canvas", {10, 50, 100, 100});
            canvas->set_AcceptFocus(true);
            if (std::string_view(event).starts_with("Mouse") && std::string_view(event) != "MouseDown")
                RuntimeInstallInstanceEventHandler(canvas.object(), "MouseDown"_s,
                                                   reinterpret_cast<Function>(takes_press));
            add<PushButton>(opened, "button", {10, 10, 200, 20});
            const auto tabs = add<TabPanel>(opened, "tabs", {150, 40, 200, 150});
            tabs->Append("one"_s);
            tabs->Append("two"_s);
            opened->Show();
            return opened.get();
        }();
        QWidget& top = shown(window);
        top.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&top));
        core::front().pump(false);
        auto* const widget = top.findChild<QWidget*>(QString::fromUtf8(control));
        ASSERT_TRUE(widget);
        if (std::string_view(event) != "GotFocus") widget->setFocus();
        RuntimeInstallInstanceEventHandler(window->_GetControl(String(std::string_view(control))).object(),
                                           String(std::string_view(event)), closes);
        act(*widget);
        core::front().pump(false);
        EXPECT_EQ(RuntimeLiveObjects(Window::__Lookup()), 1);
    }
}

}  // namespace
}  // namespace tavrik::test
