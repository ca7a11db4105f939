#include "tests/fronts/qt/front_fixture.h"

#include <QWindow>

#include <random>

namespace tavrik::front::qt {
namespace {

class QtWindowState : public QtFrontTest {
protected:
    // What the widget shows, told as the description that would make it so.
    void expect_shown_as_described() {
        const WindowDescription& told = description;
        Window& shown = window();
        EXPECT_EQ(shown.isVisible(), told.visible);
        EXPECT_EQ(shown.windowTitle().replace(QStringLiteral("[*][*]"), QStringLiteral("[*]")).toStdString(),
                  told.title.empty() ? QCoreApplication::applicationName().toStdString() : told.title);
        const bool fills_screen = told.full_screen || told.size_state == WindowSize::kMaximized;
        if (!fills_screen && told.visible && told.size_state != WindowSize::kMinimized) {
            const QSize size(told.content.width, told.content.height);
            EXPECT_TRUE(QTest::qWaitFor([&] { return shown.content().size() == size; }));
        }
        EXPECT_EQ(shown.isMinimized(), told.size_state == WindowSize::kMinimized);
        EXPECT_EQ(shown.isFullScreen(), told.full_screen);
        EXPECT_EQ(shown.windowModality(), static_cast<Qt::WindowModality>(told.modality));
        EXPECT_EQ(shown.content().autoFillBackground(), told.background.has_value());
        if (told.background) {
            EXPECT_EQ(shown.content().palette().color(QPalette::Window).rgb() & 0xFFFFFF, *told.background);
        }
        EXPECT_EQ(shown.content().toolTip().toStdString(), told.help);
        EXPECT_EQ(shown.content().testAttribute(Qt::WA_SetCursor), told.cursor.has_value());
        const bool has_frame = !(shown.windowFlags() & Qt::FramelessWindowHint);
        const bool plain = told.frame == WindowFrame::kPlain || told.frame == WindowFrame::kShadowed ||
                           told.frame == WindowFrame::kRounded;
        EXPECT_EQ(has_frame, !plain);
        if (has_frame && told.frame != WindowFrame::kModal) {
            EXPECT_EQ(bool(shown.windowFlags() & Qt::WindowCloseButtonHint), told.close_button);
        }
    }
};

TEST_F(QtWindowState, Agrees_with_the_description_after_every_step_of_a_walk) {
    description.content = {0, 0, 200, 100};
    std::mt19937 random(7);
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    const std::function<void()> steps[] = {
        [&] { description.visible = !description.visible; },
        [&] { description.title = below(2) ? "" : "Tiefe [*]"; },
        [&] { description.frame = static_cast<WindowFrame>(below(10)); },
        [&] { description.size_state = static_cast<WindowSize>(below(3)); },
        [&] { description.full_screen = !description.full_screen; },
        [&] { description.modality = static_cast<Modality>(below(3)); },
        [&] { description.resizable = !description.resizable; },
        [&] { description.close_button = !description.close_button; },
        [&] { description.content.width = 100 + below(300); },
        [&] { description.content.height = 100 + below(300); },
        [&] {
            description.background =
                below(2) ? std::optional(static_cast<std::uint32_t>(below(0x1000000))) : std::nullopt;
        },
        [&] { description.help = below(2) ? "" : "Help"; },
        [&] {
            description.cursor = below(2) ? std::optional(Cursor{CursorShape::kCross, nullptr}) : std::nullopt;
        },
    };
    for (int step = 0; step < 400; ++step) {
        const int which = below(static_cast<int>(std::size(steps)));
        steps[which]();
        apply();
        front->pump(false);
        expect_shown_as_described();
        ASSERT_FALSE(HasFailure()) << "step " << step << ", of kind " << which;
    }
}

TEST_F(QtWindowState, Reports_the_states_that_the_person_chooses) {
    description.resizable = true;
    show();
    listener.log.clear();
    window().showMaximized();
    front->pump(false);
    EXPECT_EQ(std::ranges::count(listener.log, "state 2"), 1);
    EXPECT_GT(window().content().width(), 290);
    window().showMinimized();
    window().showNormal();
    front->pump(false);
    EXPECT_EQ(std::ranges::count(listener.log, "state 2"), 1);
    EXPECT_GE(std::ranges::count(listener.log, "state 1"), 1);
    EXPECT_EQ(window().content().size(), QSize(290, 119));
    EXPECT_TRUE(QTest::qWaitFor([this] { return listener.log.back() == "resized 290 119"; }));
    EXPECT_GE(std::ranges::count(listener.log, "state 0"), 1);
}

TEST_F(QtWindowState, Tells_the_size_that_filling_the_screen_gives) {
    show();
    listener.log.clear();
    description.size_state = WindowSize::kMaximized;
    apply();
    front->pump(false);
    const QSize size = window().content().size();
    EXPECT_EQ(listener.log.back(), "resized " + std::to_string(size.width()) + ' ' + std::to_string(size.height()));
    EXPECT_EQ(std::ranges::count(listener.log, "state 2"), 0) << "the core knows";
}

TEST_F(QtWindowState, A_drag_of_the_border_is_under_way_until_it_has_been_quiet) {
    description.resizable = true;
    show();
    listener.log.clear();
    for (const int width : {300, 310}) {
        window().windowHandle()->resize(width, 119);
        front->pump(false);
    }
    EXPECT_EQ(listener.log, (Log{"resizing 300 119", "resizing 310 119"}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return listener.log.back() == "resized 310 119"; }));
    EXPECT_EQ(listener.log.size(), 3U);
}

TEST_F(QtWindowState, Its_owner_may_come_and_go) {
    show();
    RecordingWindow child_listener;
    auto child = front->make_window(child_listener);
    child->set_owner(face.get());
    child->apply(
        {.frame = WindowFrame::kSheet, .modality = Modality::kWindow, .content = {0, 0, 90, 40}, .visible = true});
    Window& sheet = static_cast<QtWindowFace&>(*child).window();
    EXPECT_EQ(sheet.windowHandle()->transientParent(), window().windowHandle());
    EXPECT_EQ(QApplication::activeModalWidget(), &sheet);
    child->set_owner(nullptr);
    face.reset();
    front->pump(false);
    EXPECT_EQ(sheet.windowHandle()->transientParent(), nullptr);
    EXPECT_TRUE(sheet.isVisible());
}

TEST_F(QtWindowState, It_may_be_destroyed_inside_each_of_its_reports) {
    const std::pair<const char*, std::function<void()>> reports[] = {
        {"close", [this] { window().close(); }},
        {"moved 30 40", [this] { window().setGeometry(30, 40, 290, 119); }},
        {"resized 333 119", [this] { window().resize(333, 119); }},
        {"state 2", [this] { window().showMaximized(); }},
        {"state 1", [this] { window().showMinimized(); }},
        {"inactive", [this] { window().hide(); }},
    };
    for (const auto& [report, cause] : reports) {
        face = front->make_window(listener);
        description.resizable = true;
        show();
        listener.log.clear();
        listener.once[report] = [this] { face.reset(); };
        cause();
        front->pump(false);
        EXPECT_EQ(face, nullptr) << report;
        EXPECT_EQ(listener.log.empty() ? "" : listener.log.back(), report);
        listener.once.clear();
    }
}

}  // namespace
}  // namespace tavrik::front::qt
