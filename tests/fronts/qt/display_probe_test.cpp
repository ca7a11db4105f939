#include "toolkit/fronts/qt/display_probe.h"

#include <QByteArray>
#include <gtest/gtest.h>

#include <map>

namespace tavrik::front::qt {
namespace {

// The environment variables that name a display, all unset for the length of a test.
class QtDisplayProbe : public ::testing::Test {
protected:
    QtDisplayProbe() {
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET"}) {
            if (qEnvironmentVariableIsSet(name)) before_[name] = qgetenv(name);
            qunsetenv(name);
        }
    }
    ~QtDisplayProbe() override {
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) qunsetenv(name);
        for (const auto& [name, value] : before_) qputenv(name, value);
    }

private:
    std::map<const char*, QByteArray> before_;
};

TEST_F(QtDisplayProbe, Without_a_display_the_reason_names_what_is_not_set) {
    const auto reason = missing_display();
    ASSERT_TRUE(reason);
    EXPECT_NE(reason->find("DISPLAY is not set"), std::string::npos);
}

TEST_F(QtDisplayProbe, A_display_that_does_not_answer_is_named) {
    qputenv("DISPLAY", "localhost:4711");
    const auto reason = missing_display();
    ASSERT_TRUE(reason);
    EXPECT_NE(reason->find("localhost:4711"), std::string::npos);
}

TEST_F(QtDisplayProbe, A_platform_that_needs_no_server_is_trusted) {
    for (const char* platform : {"offscreen", "xcb;offscreen", "vnc:port=5900", "minimal"}) {
        qputenv("QT_QPA_PLATFORM", platform);
        EXPECT_FALSE(missing_display()) << platform;
    }
}

TEST_F(QtDisplayProbe, A_platform_that_needs_a_server_is_not) {
    for (const char* platform : {"xcb", "wayland", "wayland-egl;xcb", "xcb:name=value"}) {
        qputenv("QT_QPA_PLATFORM", platform);
        EXPECT_TRUE(missing_display()) << platform;
    }
}

}  // namespace
}  // namespace tavrik::front::qt
