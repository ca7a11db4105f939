#pragma once

#include "tests/support/quiet_listeners.h"
#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/window_face.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

extern "C" tavrik::front::Front* tavrik_make_front(const tavrik::front::Start& start, std::string& reason);

namespace tavrik::front::qt {

using Log = std::vector<std::string>;

struct RecordingApplication final : ApplicationListener {
    void quit_requested() override { ++requests; }
    void woken() override { when_woken(); }
    void activated(bool active) override { activations.push_back(active); }
    void open_documents(std::span<const std::string> paths) override { documents.assign(paths.begin(), paths.end()); }

    int requests = 0;
    std::function<void()> when_woken;
    std::vector<bool> activations;
    std::vector<std::string> documents;
};

struct RecordingWindow final : test::QuietWindow {
    void close_requested() override { record("close"); }
    void activated(bool active) override { record(active ? "active" : "inactive"); }
    void moved(int left, int top) override { record("moved " + std::to_string(left) + ' ' + std::to_string(top)); }
    void resized(int width, int height, ResizePhase phase) override {
        const std::string size = std::to_string(width) + ' ' + std::to_string(height);
        record((phase == ResizePhase::kUnderWay ? "resizing " : "resized ") + size);
    }
    void size_state_changed(WindowSize now) override { record("state " + std::to_string(static_cast<int>(now))); }
    void menus_opening() override { record("opening"); }
    void menu_chosen(MenuId chosen) override { record("chosen " + std::to_string(chosen)); }

    void record(const std::string& report) {
        log.push_back(report);
        if (const auto reaction = once.extract(report)) reaction.mapped()();
    }

    Log log;
    std::map<std::string, std::function<void()>> once;  // what to do at the first such report
};

struct RecordingButton final : test::QuietControl, ButtonListener {
    void pressed() override {
        ++presses;
        on_pressed();
    }
    void focus_changed(bool has_focus) override { focused = has_focus; }

    int presses = 0;
    bool focused = false;
    std::function<void()> on_pressed = [] {};
};

// A front of its own for each test, with one window in it.
class QtFrontTest : public ::testing::Test {
protected:
    QtFrontTest() {
        std::string reason;
        front.reset(tavrik_make_front({"Map Tool", application}, reason));
        if (!front) throw std::runtime_error(reason);
        face = front->make_window(listener);
    }

    Window& window() { return static_cast<QtWindowFace&>(*face).window(); }
    QPushButton& widget(const char* name) { return *window().findChild<QPushButton*>(QLatin1String(name)); }

    void apply() { face->apply(description); }
    void show() {
        description.visible = true;
        apply();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    // Does `act` once a dialog of this kind is in front.
    template <class Dialog>
    void when_open(std::function<void(Dialog&)> act) {
        front->post([this, act] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog && dialog->isVisible()) return act(*dialog);
            when_open<Dialog>(act);
        });
    }

    RecordingApplication application;
    RecordingWindow listener;
    std::unique_ptr<Front> front;
    std::unique_ptr<WindowFace> face;
    WindowDescription description{.title = "BSP Tool", .content = {0, 0, 290, 119}};
};

}  // namespace tavrik::front::qt
