#include "toolkit/core/executable.h"

#include "toolkit/core/path.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#if defined(__APPLE__)
#include <crt_externs.h>
#include <mach-o/dyld.h>
#endif

namespace tavrik::core {
namespace {

bool is_file(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

std::optional<std::string> path_of(const std::string& argument, const std::string& folder) {
    if (auto path = path_of_url(argument)) return path;
    if (argument.empty()) return std::nullopt;
    return absolute(argument, folder);
}

}  // namespace

#if defined(__APPLE__)

std::string executable_path() {
    std::uint32_t size = 0;
    _NSGetExecutablePath(nullptr, &size);
    std::string path(size, '\0');
    if (_NSGetExecutablePath(path.data(), &size) != 0) return {};
    std::error_code error;
    return std::filesystem::canonical(path.c_str(), error).string();
}

std::vector<std::string> program_arguments() {
    char** const arguments = *_NSGetArgv();
    const int count = *_NSGetArgc();
    return count < 2 ? std::vector<std::string>{} : std::vector<std::string>(arguments + 1, arguments + count);
}

#else

// A program that was replaced while it runs is at its place all the same.
std::string executable_path() {
    constexpr std::string_view kReplaced = " (deleted)";
    std::error_code error;
    std::string path = std::filesystem::read_symlink("/proc/self/exe", error).string();
    if (path.ends_with(kReplaced) && !is_file(path)) path.resize(path.size() - kReplaced.size());
    return path;
}

std::vector<std::string> program_arguments() {
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    std::vector<std::string> arguments;
    for (std::string argument; std::getline(file, argument, '\0');) arguments.push_back(argument);
    if (!arguments.empty()) arguments.erase(arguments.begin());
    return arguments;
}

#endif

std::vector<std::string> documents_among(std::span<const std::string> arguments) {
    if (arguments.empty()) return {};
    std::error_code error;
    const std::string folder = std::filesystem::current_path(error).string();
    std::vector<std::string> documents;
    for (const std::string& argument : arguments) {
        std::optional<std::string> path = path_of(argument, folder);
        if (path && is_file(*path)) documents.push_back(std::move(*path));
    }
    return documents;
}

}  // namespace tavrik::core
