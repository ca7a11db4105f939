#include "toolkit/core/tree_copy.h"

#include "toolkit/core/failure.h"
#include "toolkit/core/file_copy.h"
#include "toolkit/core/file_times.h"
#include "toolkit/core/path.h"

#include <fcntl.h>
#include <limits.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace tavrik::core {
namespace {

constexpr int kFolder = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
// A source may become a pipe between the look and the opening: opening never waits.
constexpr int kSource = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
constexpr int kTarget = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;

}  // namespace

Descriptor open_outer(const Descriptor& folder, const struct stat& expected, int& error) {
    Descriptor outer(::openat(folder.get(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (!outer || ::fstat(outer.get(), &status) != 0) {
        error = errno;
    } else if (!is_same_file(status, expected)) {
        // Somebody moves it away under our hands.
        error = EBUSY;
    }
    return outer;
}

TreeCopy::TreeCopy(int from_folder, int to_folder)
    : outer_from_(::openat(from_folder, ".", kFolder)), outer_to_(::openat(to_folder, ".", kFolder)) {}

Outcome TreeCopy::run(int from_folder, const std::string& from, int to_folder, const std::string& to) {
    TreeCopy copy(from_folder, to_folder);
    const int error = copy.copy_all(from, to);
    return {error, std::move(copy.reason_)};
}

int TreeCopy::copy_all(const std::string& from, const std::string& to) {
    if (!outer_from_ || !outer_to_) return EACCES;
    std::swap(from_, outer_from_);
    std::swap(to_, outer_to_);
    int error = copy_entry(from, to);
    const bool is_tree = !levels_.empty();
    while (error == 0 && !levels_.empty()) {
        Level& level = levels_.back();
        if (level.next == level.names.size()) {
            error = leave();
            continue;
        }
        const std::string& name = level.names[level.next++];
        error = copy_entry(name, name);
        if (error != 0) reason_ = readable(name) + ": " + std::generic_category().message(error);
    }
    if (error == 0 && is_tree) error = sync_all(to_);
    return error;
}

int TreeCopy::copy_entry(const std::string& from, const std::string& to) {
    struct stat status {};
    if (::fstatat(from_.get(), from.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return errno;
    if (S_ISDIR(status.st_mode)) return enter(from, to);
    if (S_ISLNK(status.st_mode)) return copy_link(from, to, status);
    if (S_ISREG(status.st_mode)) return copy_file(from, to);
    return ENOTSUP;
}

int TreeCopy::copy_file(const std::string& from, const std::string& to) {
    const Descriptor source(::openat(from_.get(), from.c_str(), kSource));
    struct stat status {};
    if (!source || ::fstat(source.get(), &status) != 0) return errno;
    if (!S_ISREG(status.st_mode)) return EBUSY;
    const Descriptor target(::openat(to_.get(), to.c_str(), kTarget, 0600));
    if (!target) return errno;
    if (const int error = copy_contents(source.get(), target.get())) return error;
    if (const int error = copy_metadata(source.get(), target.get(), status)) return error;
    // All files of a folder are brought to the disk together.
    if (!levels_.empty()) return 0;
    return ::fsync(target.get()) == 0 ? 0 : errno;
}

int TreeCopy::copy_link(const std::string& from, const std::string& to, const struct stat& status) {
    char text[PATH_MAX + 1];
    const ssize_t length = ::readlinkat(from_.get(), from.c_str(), text, PATH_MAX);
    if (length < 0) return errno;
    text[length] = 0;
    if (::symlinkat(text, to_.get(), to.c_str()) != 0) return errno;
    const timespec times[] = {access_time(status), modification_time(status)};
    ::utimensat(to_.get(), to.c_str(), times, AT_SYMLINK_NOFOLLOW);
    if (::fchownat(to_.get(), to.c_str(), status.st_uid, status.st_gid, AT_SYMLINK_NOFOLLOW) != 0 && errno != EPERM) {
        return errno;
    }
    return 0;
}

int TreeCopy::enter(const std::string& from, const std::string& to) {
    Level level{.name = from, .source = {}, .target = {}, .names = {}};
    Descriptor source(::openat(from_.get(), from.c_str(), kFolder));
    if (!source || ::fstat(source.get(), &level.source) != 0) return errno;
    if (const int error = read_names(source, level.names)) return error;
    if (::mkdirat(to_.get(), to.c_str(), 0700) != 0) return errno;
    Descriptor target(::openat(to_.get(), to.c_str(), kFolder));
    if (!target || ::fstat(target.get(), &level.target) != 0) return errno;
    if (levels_.empty()) {
        outer_from_ = std::move(from_);
        outer_to_ = std::move(to_);
    }
    from_ = std::move(source);
    to_ = std::move(target);
    levels_.push_back(std::move(level));
    return 0;
}

int TreeCopy::leave() {
    const Level left = std::move(levels_.back());
    levels_.pop_back();
    Descriptor source = std::move(from_);
    Descriptor target = std::move(to_);
    int error = 0;
    from_ = levels_.empty() ? std::move(outer_from_) : open_outer(source, levels_.back().source, error);
    if (error == 0) to_ = levels_.empty() ? std::move(outer_to_) : open_outer(target, levels_.back().target, error);
    // The last thing that is done to it: it may be closed for writing from now on.
    if (error == 0) error = copy_metadata(source.get(), target.get(), left.source);
    if (error != 0) reason_ = readable(left.name) + ": " + std::generic_category().message(error);
    return error;
}

}  // namespace tavrik::core
