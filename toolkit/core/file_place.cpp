#include "toolkit/core/file_place.h"

#include "toolkit/core/path.h"

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <system_error>

namespace tavrik::core {
namespace {

#ifdef O_PATH
constexpr int kAsPlace = O_PATH | O_DIRECTORY | O_CLOEXEC;
#else
constexpr int kAsPlace = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
#endif

// The longest path that the system takes at once, with room for the zero byte.
constexpr std::size_t kLongest = PATH_MAX - 1;
constexpr int kMostLinks = 40;

bool has_zero_byte(std::string_view path) { return path.find('\0') != std::string_view::npos; }

bool has_parent_step(std::string_view path) { return path.find("/..") != std::string_view::npos; }

// Takes as many names off a path as the system takes at once.
std::string take_part(std::string_view& path) {
    std::size_t end = path.size();
    if (end > kLongest) end = path.rfind('/', kLongest);
    if (end == std::string_view::npos || end == 0) end = std::min(path.find('/', 1), path.size());
    std::string part(path.substr(0, end));
    path.remove_prefix(end);
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    return part;
}

int follow(std::string& path, int& links_left);

// Takes ".." out of an absolute path. The folder around what a link leads to isn't the one around the link.
std::string without_parent_steps(std::string whole, int& links_left) {
    if (!has_parent_step(whole)) return whole;
    std::string plain = "/";
    for (std::size_t begin = 1; begin < whole.size();) {
        const std::size_t end = std::min(whole.find('/', begin), whole.size());
        const std::string_view name = std::string_view(whole).substr(begin, end - begin);
        begin = end + 1;
        if (name == "..") {
            follow(plain, links_left);
            plain = folder_of(plain);
        } else {
            plain = join(plain, name);
        }
    }
    return plain;
}

// The number of links is shared by all that one path leads through, so that every loop of them ends.
int follow(std::string& path, int& links_left) {
    std::string followed = path;
    std::string target;
    while (links_left > 0) {
        const int error = read_link(Place(followed), target);
        if (error == EINVAL || error == ENOENT) {
            path = std::move(followed);
            return 0;
        }
        if (error != 0) return error;
        --links_left;
        followed = without_parent_steps(absolute(target, folder_of(followed)), links_left);
    }
    return ELOOP;
}

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

}  // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
}

Descriptor::~Descriptor() {
    if (number_ >= 0) ::close(number_);
}

Descriptor open_folder(std::string_view path, int& error) {
    error = 0;
    if (has_zero_byte(path)) {
        error = EINVAL;
        return {};
    }
    std::string_view rest = path;
    Descriptor folder;
    do {
        const std::string part = take_part(rest);
        Descriptor next(::openat(folder ? folder.get() : AT_FDCWD, part.c_str(), kAsPlace));
        if (!next) {
            error = errno;
            return {};
        }
        folder = std::move(next);
    } while (!rest.empty());
    return folder;
}

Place::Place(std::string_view path) : name_(path == "/" ? "." : name_of(path)) {
    if (path.empty()) {
        error_ = ENOENT;
    } else if (has_zero_byte(path)) {
        error_ = EINVAL;
    } else {
        const std::string_view folder = folder_of(path);
        folder_ = open_folder(folder.empty() ? "." : folder, error_);
    }
}

int Place::look(Links links, struct stat& status) const {
    if (error_ != 0) return error_;
    const int flags = links == Links::kItself ? AT_SYMLINK_NOFOLLOW : 0;
    return ::fstatat(folder(), name(), &status, flags) == 0 ? 0 : errno;
}

int look_at(const std::string& path, Links links, struct stat& status) {
    if (path.size() > kLongest || has_zero_byte(path)) return Place(path).look(links, status);
    const int flags = links == Links::kItself ? AT_SYMLINK_NOFOLLOW : 0;
    return ::fstatat(AT_FDCWD, path.c_str(), &status, flags) == 0 ? 0 : errno;
}

int read_link(const Place& place, std::string& target) {
    if (place.error() != 0) return place.error();
    char bytes[PATH_MAX];
    const ssize_t length = ::readlinkat(place.folder(), place.name(), bytes, sizeof bytes);
    if (length < 0) return errno;
    target.assign(bytes, static_cast<std::size_t>(length));
    return 0;
}

int follow_links(std::string& path) {
    int links_left = kMostLinks;
    return follow(path, links_left);
}

std::string absolute_path(std::string_view path) {
    if (path.empty()) return {};
    std::error_code error;
    int links_left = kMostLinks;
    return without_parent_steps(
        absolute(path, path.starts_with('/') ? "/" : std::filesystem::current_path(error).native()), links_left);
}

int read_names(const Descriptor& folder, std::vector<std::string>& names) {
    // The reading has a place of its own in the folder, so that it begins at its start.
    const int again = ::openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (again < 0) return errno;
    const std::unique_ptr<DIR, CloseFolder> entries(::fdopendir(again));
    if (!entries) {
        const int error = errno;
        ::close(again);
        return error;
    }
    errno = 0;
    while (const dirent* const entry = ::readdir(entries.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
        errno = 0;
    }
    return errno;
}

}  // namespace tavrik::core
