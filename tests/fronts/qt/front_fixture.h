#pragma once

#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/window_face.h"

#include <QApplication>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

extern "C" tavrik::front::Front* tavrik_make_front(const tavrik::front::Start& start, std::string& reason);

namespace tavrik::front::qt {

using Log = std::vector<std::string>;

struct RecordingApplication final : ApplicationListener {
    void quit_requested() override {
        ++requests;
        if (on_request) on_request();
    }

    int requests = 0;
    std::function<void()> on_request;
};

struct RecordingWindow final : WindowListener {
    void close_requested() override {
        log.push_back("close");
        if (on_close) on_close();
    }
    void activated(bool active) override { log.push_back(active ? "active" : "inactive"); }
    void moved(int left, int top) override { log.push_back("moved " + pair(left, top)); }
    void resized(int width, int height) override { log.push_back("resized " + pair(width, height)); }
    void menus_opening() override {
        log.push_back("opening");
        if (on_opening) on_opening();
    }
    void menu_chosen(MenuId chosen) override {
        log.push_back("chosen " + std::to_string(chosen));
        if (on_chosen) on_chosen();
    }

    static std::string pair(int a, int b) { return std::to_string(a) + ' ' + std::to_string(b); }

    Log log;
    std::function<void()> on_close;
    std::function<void()> on_opening;
    std::function<void()> on_chosen;
};

struct RecordingButton final : ButtonListener {
    void pressed() override {
        ++presses;
        if (on_pressed) on_pressed();
    }
    void focus_changed(bool has_focus) override { focused = has_focus; }

    int presses = 0;
    bool focused = false;
    std::function<void()> on_pressed;
};

// A front of its own for each test, with one window in it.
class QtFrontTest : public ::testing::Test {
protected:
    QtFrontTest() {
        std::string reason;
        front.reset(tavrik_make_front({"Map Tool", application}, reason));
        if (!front) throw std::runtime_error(reason);
        face = front->make_window(window_listener);
    }

    ~QtFrontTest() override { face.reset(); }

    Window& window() { return static_cast<QtWindowFace&>(*face).window(); }

    void show() {
        description.visible = true;
        face->apply(description);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    QPushButton& widget(const char* name) { return *window().findChild<QPushButton*>(QLatin1String(name)); }

    // Does `act` once a dialog of this kind is in front.
    template <class Dialog>
    void when_open(std::function<void(Dialog&)> act) {
        front->post([this, act] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog && dialog->isVisible()) return act(*dialog);
            when_open<Dialog>(act);
        });
    }

    static WindowDescription map_window() {
        WindowDescription window;
        window.title = "BSP Tool";
        window.content = {0, 0, 290, 119};
        return window;
    }

    RecordingApplication application;
    RecordingWindow window_listener;
    std::unique_ptr<Front> front;
    std::unique_ptr<WindowFace> face;
    WindowDescription description = map_window();
};

inline ButtonDescription button_named(std::string name, Rect bounds, int tab_index = 0) {
    ButtonDescription button;
    button.caption = name;
    button.name = std::move(name);
    button.bounds = bounds;
    button.tab_index = tab_index;
    return button;
}

}  // namespace tavrik::front::qt
