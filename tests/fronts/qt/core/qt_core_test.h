#pragma once

#include "tests/support/balance.h"
#include "toolkit/core/program.h"
#include "toolkit/core/window.h"
#include "toolkit/front/front.h"
#include "toolkit/fronts/qt/window_face.h"
#include "ui/window.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <span>
#include <string>

extern "C" tavrik::front::Front* tavrik_make_front(const tavrik::front::Start& start, std::string& reason);

namespace tavrik::test {

struct Nobody final : front::ApplicationListener {
    void quit_requested() override {}
    void woken() override {}
    void activated(bool) override {}
    void open_documents(std::span<const std::string>) override {}
};

// The core, the classes and the Qt front together, with one window.
class QtCoreTest : public testing::Test {
protected:
    QtCoreTest() {
        std::string reason;
        core::use_front(std::unique_ptr<front::Front>(tavrik_make_front({"Walk", nobody_}, reason)));
        window_->Window_();
    }
    ~QtCoreTest() override {
        window_->Close();
        window_ = nullptr;
        core::use_front(nullptr);
    }

    int random(int below) { return std::uniform_int_distribution(0, below - 1)(random_); }

    static front::qt::Window& shown(const Ref<Window>& window) {
        return static_cast<front::qt::QtWindowFace*>(core::window_state(window.object()).face())->window();
    }
    front::qt::Window& shown_window() { return shown(window_); }

    Balance balance_;
    Nobody nobody_;
    std::mt19937 random_{20};
    Ref<Window> window_ = make<Window>();
};

}  // namespace tavrik::test
