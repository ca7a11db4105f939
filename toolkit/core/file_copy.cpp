#include "toolkit/core/file_copy.h"

#include "toolkit/core/extended_attributes.h"
#include "toolkit/core/file_times.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <limits>
#include <vector>

namespace tavrik::core {
namespace {

constexpr std::size_t kAtOnce = std::size_t{256} * 1024;
constexpr off_t kToTheEnd = std::numeric_limits<off_t>::max();

int write_all(int to, const char* bytes, std::size_t count, off_t at) {
    while (count > 0) {
        const ssize_t written = ::pwrite(to, bytes, count, at);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return written < 0 ? errno : EIO;
        bytes += written;
        count -= static_cast<std::size_t>(written);
        at += written;
    }
    return 0;
}

// Both ways go from `at` to `end` or to the end of the file, and leave in `at` how far they came.
int copy_through_memory(int from, int to, off_t& at, off_t end) {
    std::vector<char> bytes(kAtOnce);
    while (at < end) {
        const auto wanted = static_cast<std::size_t>(std::min<off_t>(end - at, kAtOnce));
        const ssize_t count = ::pread(from, bytes.data(), wanted, at);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        if (count == 0) break;
        if (const int error = write_all(to, bytes.data(), static_cast<std::size_t>(count), at)) return error;
        at += count;
    }
    return 0;
}

#ifdef __linux__
bool needs_memory(int error) {
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM;
}

int copy_range(int from, int to, off_t& at, off_t end) {
    while (at < end) {
        off_t target = at;
        const auto wanted = static_cast<std::size_t>(std::min<off_t>(end - at, std::numeric_limits<int>::max()));
        const ssize_t count = ::copy_file_range(from, &at, to, &target, wanted, 0);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return needs_memory(errno) ? copy_through_memory(from, to, at, end) : errno;
        // Some file systems say so in front of the end too.
        if (count == 0) return copy_through_memory(from, to, at, end);
    }
    return 0;
}
#else
int copy_range(int from, int to, off_t& at, off_t end) { return copy_through_memory(from, to, at, end); }
#endif

}  // namespace

int copy_contents(int from, int to) {
    struct stat source {};
    if (::fstat(from, &source) != 0) return errno;
    off_t at = 0;
    // The system's own files tell no size.
    if (source.st_size == 0) return copy_through_memory(from, to, at, kToTheEnd);
    while (at < source.st_size) {
        const off_t data = ::lseek(from, at, SEEK_DATA);
        if (data < 0 && errno == ENXIO) break;
        const off_t hole = data < 0 ? -1 : ::lseek(from, data, SEEK_HOLE);
        const off_t end = hole < 0 ? source.st_size : hole;
        at = std::max(data, at);
        if (const int error = copy_range(from, to, at, end)) return error;
        if (at < end) break;
    }
    // What has become shorter in the meantime is copied as it is now.
    if (::fstat(from, &source) != 0) return errno;
    return ::ftruncate(to, source.st_size) == 0 ? 0 : errno;
}

int copy_metadata(int from, int to, const struct stat& source) {
    mode_t mode = source.st_mode & 07777;
    if (::fchown(to, source.st_uid, source.st_gid) != 0) {
        if (errno != EPERM && errno != EINVAL) return errno;
        // Rights that go with an owner don't go to another one.
        mode &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
    }
    if (const int error = copy_attributes(from, to)) return error;
    if (::fchmod(to, mode) != 0) return errno;
    const timespec times[] = {access_time(source), modification_time(source)};
    return ::futimens(to, times) == 0 ? 0 : errno;
}

}  // namespace tavrik::core
