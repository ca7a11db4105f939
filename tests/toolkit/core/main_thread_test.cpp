#include "toolkit/core/main_thread.h"

#include "data/application.h"
#include "tests/support/balance.h"
#include "tests/support/recording_front.h"
#include "toolkit/core/event_scope.h"
#include "ui/menu_item.h"
#include "ui/window.h"

#include <tavrik/dialogs.h>
#include <tavrik/wrong_thread.h>

#include <gmock/gmock.h>

#include <pthread.h>
#include <unistd.h>

#include <functional>
#include <thread>

namespace tavrik::test {
namespace {

// What is thrown by a call on a thread of the system that is named "worker".
std::string told_on_another_thread(const std::function<void()>& call) {
    std::string told;
    std::thread([&] {
        pthread_setname_np(pthread_self(), "worker");
        try {
            call();
        } catch (const WrongThread& wrong) {
            told = wrong.what();
            EXPECT_THAT(told, testing::HasSubstr(" thread " + std::to_string(gettid()) + " (\"worker\"):"));
        }
    }).join();
    return told;
}

TEST(MainThread, Is_the_only_one_that_windows_menus_and_the_application_answer_to) {
    const Balance balance;
    const RecordingFront front;
    const Ref<Window> window = make<Window>();
    const Ref<MenuItem> item = make<MenuItem>();
    const Ref<Application> app = make<Application>();
    const String text = "text"_s;
    struct Call {
        const char* name;
        std::function<void()> call;
    };
    const Call calls[] = {
        {"windowTitleGetter", [&] { windowTitleGetter(window.object(), 0); }},
        {"windowTitleSetter", [&] { windowTitleSetter(window.object(), 0, text); }},
        {"windowPosSetter", [&] { windowPosSetter(window.object(), 0, 1); }},
        {"windowPosGetter", [&] { windowPosGetter(window.object(), 0); }},
        {"RuntimeMenuItemTextSetter", [&] { RuntimeMenuItemTextSetter(item.object(), 0, text); }},
        {"AppAutoCloseGetter", [&] { AppAutoCloseGetter(app.object(), 0); }},
        {"RuntimeDoEvents", [&] { RuntimeDoEvents(app.object(), 0); }},
        {"RuntimeMsgBox", [&] { RuntimeMsgBox(text); }},
        {"enableMenuItems", [&] { enableMenuItems(0); }},
        {"QuitMenuAction", [&] { QuitMenuAction(item.object()); }},
    };
    for (const auto& [name, call] : calls) {
        EXPECT_THAT(told_on_another_thread(call), testing::StartsWith(std::string(name) + " was called on thread "));
        call();
    }
}

TEST(MainThread, Is_the_only_one_that_events_are_raised_on) {
    const auto deliver_elsewhere = [] { std::thread([] { core::deliver([] {}); }).join(); };
    EXPECT_DEATH(deliver_elsewhere(), "was called on thread");
}

}  // namespace
}  // namespace tavrik::test
