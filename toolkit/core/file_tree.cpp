#include "toolkit/core/file_tree.h"

#include "toolkit/core/tree_copy.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <random>

namespace tavrik::core {
namespace {

constexpr const char* kIntoItself = "a folder can't go into itself";

int rename_unless_there(int from_folder, const char* from, int to_folder, const char* to) {
#if defined(__linux__)
    const int result = ::renameat2(from_folder, from, to_folder, to, RENAME_NOREPLACE);
#elif defined(__APPLE__)
    const int result = ::renameatx_np(from_folder, from, to_folder, to, RENAME_EXCL);
#else
    const int result = -1;
    errno = ENOSYS;
#endif
    return result == 0 ? 0 : errno;
}

// For file systems that can't refuse to replace: the new name is taken first, by a second link, or by an empty folder
// that the rename may replace.
int rename_in_two_steps(int from_folder, const char* from, int to_folder, const char* to) {
    struct stat status {};
    if (::fstatat(from_folder, from, &status, AT_SYMLINK_NOFOLLOW) != 0) return errno;
    if (!S_ISDIR(status.st_mode)) {
        if (::linkat(from_folder, from, to_folder, to, 0) != 0) return errno;
        return ::unlinkat(from_folder, from, 0) == 0 ? 0 : errno;
    }
    if (::mkdirat(to_folder, to, 0700) != 0) return errno;
    if (::renameat(from_folder, from, to_folder, to) == 0) return 0;
    const int error = errno;
    ::unlinkat(to_folder, to, AT_REMOVEDIR);
    return error;
}

// Whether a folder is another one or lies in it, at whatever depth.
bool lies_in(int folder, const struct stat& other) {
    Descriptor here(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (!here || ::fstat(here.get(), &status) != 0) return false;
    while (!is_same_file(status, other)) {
        const struct stat below = status;
        here = Descriptor(::openat(here.get(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!here || ::fstat(here.get(), &status) != 0 || is_same_file(status, below)) return false;
    }
    return true;
}

// A rename is on the disk when its folder is.
void sync_folder(int folder) {
    const Descriptor open(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (open) ::fsync(open.get());
}

Outcome copy_between(const Place& source, const Place& target) {
    struct stat status {};
    if (const int error = source.look(Links::kItself, status)) return {error, {}};
    if (target.error() != 0) return {target.error(), {}};
    if (S_ISDIR(status.st_mode) && lies_in(target.folder(), status)) return {EINVAL, kIntoItself};
    return make_and_rename(target, [&](const Descriptor& folder, const std::string& name) {
        return TreeCopy::run(source.folder(), source.name(), folder.get(), name);
    });
}

}  // namespace

int sync_all(const Descriptor& folder) {
#ifdef __linux__
    return ::syncfs(folder.get()) == 0 ? 0 : errno;
#else
    return ::fsync(folder.get()) == 0 ? 0 : errno;
#endif
}

std::string temporary_name() {
    static std::random_device device;
    const std::uint64_t number = (std::uint64_t{device()} << 32) | device();
    char digits[16];
    auto* const end = std::to_chars(std::begin(digits), std::end(digits), number, 16).ptr;
    return ".tavrik-" + std::string(digits, end);
}

int rename_in_place(int from_folder, const char* from, int to_folder, const char* to) {
    const int error = rename_unless_there(from_folder, from, to_folder, to);
    if (error != ENOSYS && error != EINVAL && error != ENOTSUP) return error;
    return rename_in_two_steps(from_folder, from, to_folder, to);
}

int remove_entry(const Place& place) {
    if (place.error() != 0) return place.error();
    if (::unlinkat(place.folder(), place.name(), 0) == 0) return 0;
    const int error = errno;
    if (error != EISDIR && error != EPERM) return error;
    if (::unlinkat(place.folder(), place.name(), AT_REMOVEDIR) == 0) return 0;
    return errno == ENOTDIR ? error : errno;
}

Outcome make_and_rename(const Place& target, const Making& make) {
    if (target.error() != 0) return {target.error(), {}};
    // Known before anything is copied; the rename at the end is what decides.
    struct stat there {};
    const int error = target.look(Links::kItself, there);
    if (error == 0) return {EEXIST, {}};
    if (error != ENOENT) return {error, {}};

    const std::string temporary = temporary_name();
    const Descriptor folder(::openat(target.folder(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder) return {errno, {}};
    Outcome outcome = make(folder, temporary);
    if (outcome.error == 0) {
        outcome.error = rename_in_place(folder.get(), temporary.c_str(), folder.get(), target.name());
    }
    if (outcome.error != 0) {
        remove_tree(folder, temporary);
        return outcome;
    }
    ::fsync(folder.get());
    return outcome;
}

// It goes at once, by a rename, so that it is there whole or not at all.
int remove_at_once(const Place& source, bool& touched) {
    if (source.error() != 0) return source.error();
    const std::string aside = temporary_name();
    const Descriptor folder(::openat(source.folder(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status {};
    if (!folder || ::fstatat(folder.get(), source.name(), &status, AT_SYMLINK_NOFOLLOW) != 0) return errno;
    if (const int error = rename_in_place(folder.get(), source.name(), folder.get(), aside.c_str())) return error;
    const int error = remove_tree(folder, aside);
    if (error == 0) return 0;
    touched = S_ISDIR(status.st_mode);
    rename_in_place(folder.get(), aside.c_str(), folder.get(), source.name());
    return error;
}

Outcome copy_tree(const std::string& from, Links links, const std::string& to) {
    std::string source = from;
    if (links == Links::kFollow) {
        if (const int error = follow_links(source)) return {error, {}};
    }
    return copy_between(Place(source), Place(to));
}

Outcome move_tree(const std::string& from, const std::string& to) {
    const Place source(from);
    const Place target(to);
    struct stat status {};
    if (const int error = source.look(Links::kItself, status)) return {error, {}};
    if (target.error() != 0) return {target.error(), {}};
    if (S_ISDIR(status.st_mode) && lies_in(target.folder(), status)) return {EINVAL, kIntoItself};
    const int error = rename_in_place(source.folder(), source.name(), target.folder(), target.name());
    if (error == 0) {
        sync_folder(target.folder());
        sync_folder(source.folder());
    }
    if (error != EXDEV) return {error, {}};

    Outcome outcome = copy_between(source, target);
    if (outcome.error != 0) return outcome;
    bool touched = false;
    outcome.error = remove_at_once(source, touched);
    if (outcome.error == 0 || touched) return outcome;
    const Descriptor folder(::openat(target.folder(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder) remove_tree(folder, target.name());
    return outcome;
}

}  // namespace tavrik::core
