#include "toolkit/fronts/qt/display_probe.h"

#include <QByteArray>
#include <gtest/gtest.h>

namespace tavrik::front::qt {
namespace {

TEST(QtDisplayProbe, A_missing_display_is_named_and_only_a_platform_without_a_server_is_trusted) {
    const QByteArray before = qgetenv("QT_QPA_PLATFORM");
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET"}) qunsetenv(name);
    EXPECT_NE(missing_display().value_or("").find("DISPLAY is not set"), std::string::npos);
    qputenv("DISPLAY", "localhost:4711");
    EXPECT_NE(missing_display().value_or("").find("localhost:4711"), std::string::npos);
    qunsetenv("DISPLAY");

    const std::pair<const char*, bool> platforms[] = {
        {"offscreen", true}, {"xcb;offscreen", true}, {"vnc:port=5900", true},    {"minimal", true},
        {"xcb", false},      {"wayland", false},      {"wayland-egl;xcb", false}, {"xcb:name=value", false},
    };
    for (const auto& [platform, trusted] : platforms) {
        qputenv("QT_QPA_PLATFORM", platform);
        EXPECT_EQ(!missing_display(), trusted) << platform;
    }
    qputenv("QT_QPA_PLATFORM", before);
}

}  // namespace
}  // namespace tavrik::front::qt
