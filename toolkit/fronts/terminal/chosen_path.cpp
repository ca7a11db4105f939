#include "toolkit/fronts/terminal/chosen_path.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace tavrik::front::terminal {
namespace {

std::string with_home(std::string_view typed) {
    const char* home = std::getenv("HOME");
    if (!typed.starts_with("~/") || home == nullptr || *home == '\0') return std::string(typed);
    return home + std::string(typed.substr(1));
}

std::string reason(int error) { return std::generic_category().message(error); }

}  // namespace

std::string absolute_path(std::string_view typed, std::string_view folder) {
    const std::filesystem::path path = std::filesystem::path(folder) / with_home(typed);
    std::error_code no_working_directory;
    const std::filesystem::path absolute = std::filesystem::absolute(path, no_working_directory);
    return no_working_directory ? path.string() : absolute.string();
}

std::string refusal_of(const std::string& path) {
    // The system would see only what stands before the zero byte, and that may be another file.
    if (path.find('\0') != std::string::npos) return reason(ENOENT);

    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return reason(errno);
    if (S_ISDIR(status.st_mode)) return reason(EISDIR);
    return S_ISREG(status.st_mode) ? "" : "Not a regular file";
}

}  // namespace tavrik::front::terminal
