#pragma once

#include "tests/support/balance.h"
#include "tests/support/recording_front.h"
#include "ui/window.h"

#include <functional>
#include <string>
#include <vector>

namespace tavrik::test {

// What the handlers of this test have heard, and what they do.
struct Heard {
    std::vector<std::string> events;
    std::function<void(Object*)> deed;
};
Heard& heard();

// A handler of an event that tells its name.
template <LiteralText Name, class F>
struct Hears;
template <LiteralText Name, class R, class... A>
struct Hears<Name, R(A...)> {
    static R call(Object* self, A...) {
        heard().events.emplace_back(Name.view());
        if (heard().deed) heard().deed(self);
        return R();
    }
};

template <LiteralText Name, class F = void()>
void listen_to(const Ref<Object>& object) {
    RuntimeInstallInstanceEventHandler(object.object(), String(Name.view()),
                                       reinterpret_cast<Function>(&Hears<Name, F>::call));
}

// A program with windows and no screen.
class WindowsTest : public testing::Test {
protected:
    ~WindowsTest() override;

    // Constructed, and shown.
    Ref<Window> open(std::function<void(const Ref<Window>&)> prepare = {});
    RecordingFront::Window& face(std::size_t index = 0) { return *front_.windows.at(index); }

    Balance balance_;
    RecordingFront front_;
};

}  // namespace tavrik::test
