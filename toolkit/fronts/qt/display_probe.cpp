#include "toolkit/fronts/qt/display_probe.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <QStringList>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace tavrik::front::qt {
namespace {

// Why a display can't be used; nothing if it can.
using Failure = std::optional<std::string>;

bool has_platform_plugin(const QString& stem) {
    QStringList folders{qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH")};
    for (const QString& path : QCoreApplication::libraryPaths()) folders << path + QStringLiteral("/platforms");
    return std::any_of(folders.cbegin(), folders.cend(), [&stem](const QString& folder) {
        return !folder.isEmpty() && !QDir(folder).entryList({stem + u'*'}, QDir::Files).isEmpty();
    });
}

Failure try_x() {
    const QByteArray display = qgetenv("DISPLAY");
    if (display.isEmpty()) return "DISPLAY is not set";
    if (!has_platform_plugin(QStringLiteral("libqxcb"))) return "Qt's plugin for X is not installed";

    // Qt's plugin for X loads the same library: it stays loaded.
    QLibrary xcb(QStringLiteral("xcb"), 1);
    const auto connect = reinterpret_cast<void* (*)(const char*, int*)>(xcb.resolve("xcb_connect"));
    const auto has_error = reinterpret_cast<int (*)(void*)>(xcb.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<void (*)(void*)>(xcb.resolve("xcb_disconnect"));
    if (!connect || !has_error || !disconnect) return "libxcb is not installed";

    void* const connection = connect(nullptr, nullptr);
    const bool answers = has_error(connection) == 0;
    disconnect(connection);
    if (answers) return std::nullopt;
    return "no X server answers at \"" + display.toStdString() + '"';
}

QByteArray wayland_socket_path(const QByteArray& display) {
    return display.startsWith('/') ? display : qgetenv("XDG_RUNTIME_DIR") + '/' + display;
}

// 0, or the errno of the failure.
int connect_to(const QByteArray& socket_path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socket_path.size() >= static_cast<qsizetype>(sizeof address.sun_path)) return ENAMETOOLONG;
    std::copy(socket_path.cbegin(), socket_path.cend(), address.sun_path);

    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (socket < 0) return errno;
    const bool connected = ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    const int error = connected ? 0 : errno;
    ::close(socket);
    return error;
}

Failure try_wayland() {
    const bool has_open_socket = qEnvironmentVariableIsSet("WAYLAND_SOCKET");
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (!has_open_socket && display.isEmpty()) return "WAYLAND_DISPLAY is not set";
    if (!has_platform_plugin(QStringLiteral("libqwayland"))) return "Qt's plugin for Wayland is not installed";
    if (has_open_socket) return std::nullopt;

    const int error = connect_to(wayland_socket_path(display));
    if (error == 0) return std::nullopt;
    return "no Wayland compositor answers at \"" + display.toStdString() + "\": " + std::strerror(error);
}

// The platforms that the environment asks for, without their options.
QByteArrayList platforms_asked_for() {
    QByteArrayList names;
    for (const QByteArray& entry : qgetenv("QT_QPA_PLATFORM").split(';')) {
        const QByteArray name = entry.split(':').first().trimmed();
        if (!name.isEmpty()) names << name;
    }
    return names;
}

bool is_x(const QByteArray& platform) { return platform == "xcb"; }
bool is_wayland(const QByteArray& platform) { return platform.startsWith("wayland"); }

}  // namespace

std::optional<std::string> missing_display() {
#if defined(Q_OS_MACOS) || defined(Q_OS_WIN)
    return std::nullopt;
#else
    QByteArrayList platforms = platforms_asked_for();
    if (platforms.isEmpty()) platforms = {"xcb", "wayland"};

    std::string reasons;
    for (const QByteArray& platform : platforms) {
        if (!is_x(platform) && !is_wayland(platform)) return std::nullopt;

        const Failure failure = is_x(platform) ? try_x() : try_wayland();
        if (!failure) return std::nullopt;
        reasons += (reasons.empty() ? "" : ", and ") + *failure;
    }
    return reasons;
#endif
}

}  // namespace tavrik::front::qt
