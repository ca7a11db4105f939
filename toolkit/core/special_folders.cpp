#include "toolkit/core/special_folders.h"

#include "toolkit/core/file_place.h"
#include "toolkit/core/path.h"

#include <tavrik/folder_item.h>

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <string_view>

namespace tavrik::core {
namespace {

constexpr std::string_view kDesktopKey = "XDG_DESKTOP_DIR=";
constexpr std::string_view kHome = "$HOME";

// A folder that a variable of the environment names; only absolute paths count.
std::string from_environment(const char* variable, const std::string& otherwise) {
    const char* const value = std::getenv(variable);
    return value != nullptr && value[0] == '/' ? std::string(value) : otherwise;
}

// The value in a line such as XDG_DESKTOP_DIR="$HOME/Desktop".
std::optional<std::string> path_in(std::string_view value) {
    if (value.size() < 2 || value.front() != '"') return {};
    value.remove_prefix(1);
    std::string path;
    if (value.starts_with(kHome)) {
        path = home_folder();
        value.remove_prefix(kHome.size());
    }
    for (std::size_t i = 0; i < value.size() && value[i] != '"'; ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) ++i;
        path += value[i];
    }
    if (!path.starts_with('/')) return {};
    return path;
}

std::string desktop_folder() {
    const std::string home = home_folder();
    std::ifstream file(from_environment("XDG_CONFIG_HOME", join(home, ".config")) + "/user-dirs.dirs");
    std::string desktop = join(home, "Desktop");
    for (std::string line; std::getline(file, line);) {
        const std::string_view text = line;
        if (!text.starts_with(kDesktopKey)) continue;
        if (auto path = path_in(text.substr(kDesktopKey.size()))) desktop = *path;
    }
    return desktop;
}

std::string home_trash() {
#ifdef __APPLE__
    return join(home_folder(), ".Trash");
#else
    return from_environment("XDG_DATA_HOME", join(home_folder(), ".local/share")) + "/Trash/files";
#endif
}

// The highest folder around a path that lies on the same file system.
std::string top_folder(const std::string& path) {
    std::string top(path.empty() ? "/" : path);
    struct stat status {};
    while (look_at(top, Links::kFollow, status) != 0 && top != "/") top = folder_of(top);
    const dev_t device = status.st_dev;
    while (top != "/") {
        std::string outer(folder_of(top));
        if (look_at(outer, Links::kFollow, status) != 0 || status.st_dev != device) break;
        top = std::move(outer);
    }
    return top;
}

std::string shared_trash(const std::string& path) {
    const std::string top = top_folder(path);
    const std::string user = std::to_string(::getuid());
    struct stat status {};
    const std::string common = join(top, ".Trash");
    // One that others could put a link or a folder of their own into doesn't count.
    const bool is_safe =
        look_at(common, Links::kItself, status) == 0 && S_ISDIR(status.st_mode) && (status.st_mode & S_ISVTX) != 0;
    return is_safe ? join(join(common, user), "files") : join(join(top, ".Trash-" + user), "files");
}

}  // namespace

std::string home_folder() {
    std::string home = from_environment("HOME", "");
    if (!home.empty()) return home;
    std::array<char, 16384> text{};
    passwd entry{};
    passwd* found = nullptr;
    const bool known = ::getpwuid_r(::getuid(), &entry, text.data(), text.size(), &found) == 0 && found != nullptr;
    return known && found->pw_dir[0] == '/' ? found->pw_dir : "/";
}

std::optional<std::string> special_folder(std::int32_t code, const std::string& path) {
    switch (code) {
        case kDesktopFolder:
            return desktop_folder();
        case kTrashFolder:
            return home_trash();
        case kSharedTrashFolder:
            return shared_trash(path);
        case kTemporaryFolder:
            return from_environment("TMPDIR", "/tmp");
        default:
            return {};
    }
}

}  // namespace tavrik::core
