#include "toolkit/core/mac_metadata.h"

#include "toolkit/core/apple_double.h"
#include "toolkit/core/extended_attributes.h"
#include "toolkit/core/file_tree.h"

#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <utility>

namespace tavrik::core {
namespace {

#ifdef __APPLE__
constexpr const char* kFinderInfo = "com.apple.FinderInfo";
#else
constexpr const char* kFinderInfo = "user.com.apple.FinderInfo";
#endif
constexpr std::size_t kFinderInfoSize = 32;
// More than files of this kind have, unless they hold a resource fork beyond all bounds.
constexpr std::size_t kMostBytes = std::size_t{64} * 1024 * 1024;

std::size_t place_of(MacCode which) { return which == MacCode::kType ? 0 : kMacCodeSize; }

// The file that a path leads to, and the place of its companion.
struct MacFile {
    explicit MacFile(std::string path) : error(follow_links(path)) {
        if (error != 0) return;
        place.emplace(path);
        struct stat status {};
        error = place->look(Links::kItself, status);
        if (error != 0) return;
        // Opening anything else could do something already.
        if (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode)) {
            error = ENOTSUP;
            return;
        }
        companion = std::string("._") + place->name();
        open = Descriptor(
            ::openat(place->folder(), place->name(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (!open) error = errno;
    }

    int error;
    std::optional<Place> place;
    std::string companion;
    Descriptor open;
};

// ENOENT where there is none, EILSEQ where it is something else.
int read_companion(const MacFile& file, AppleDouble& parts) {
    const Descriptor open(
        ::openat(file.place->folder(), file.companion.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!open || ::fstat(open.get(), &status) != 0) return errno;
    if (!S_ISREG(status.st_mode) || status.st_size > static_cast<off_t>(kMostBytes)) return EILSEQ;
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t count = ::pread(open.get(), bytes.data(), bytes.size(), 0);
    if (count < 0) return errno;
    bytes.resize(static_cast<std::size_t>(count));
    auto parsed = AppleDouble::parse(bytes);
    if (!parsed) return EILSEQ;
    parts = std::move(*parsed);
    return 0;
}

int write_companion(const MacFile& file, const AppleDouble& parts) {
    const std::string temporary = temporary_name();
    const std::string bytes = parts.bytes();
    const int folder = file.place->folder();
    {
        const Descriptor open(::openat(folder, temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (!open) return errno;
        const ssize_t written = ::pwrite(open.get(), bytes.data(), bytes.size(), 0);
        int error = written == static_cast<ssize_t>(bytes.size()) ? 0 : (written < 0 ? errno : ENOSPC);
        if (error == 0 && ::fsync(open.get()) != 0) error = errno;
        if (error != 0) {
            ::unlinkat(folder, temporary.c_str(), 0);
            return error;
        }
    }
    // What it replaces has been read into it.
    if (::renameat(folder, temporary.c_str(), folder, file.companion.c_str()) == 0) return 0;
    const int error = errno;
    ::unlinkat(folder, temporary.c_str(), 0);
    return error;
}

std::string whole_info(std::string_view info) {
    std::string whole(info);
    whole.resize(std::max(whole.size(), kFinderInfoSize), '\0');
    return whole;
}

int read_finder_info(const MacFile& file, std::string& info) {
    const int error = read_attribute(file.open.get(), kFinderInfo, info);
    if (error == 0) return 0;
    info.clear();
    if (!is_no_attribute(error) && !is_without_attributes(error)) return error;
    AppleDouble parts;
    // A companion of another kind tells nothing.
    const int unread = read_companion(file, parts);
    if (unread == 0) info = parts.part(AppleDouble::kFinderInfo);
    return unread == ENOENT || unread == EILSEQ || unread == ELOOP ? 0 : unread;
}

int write_finder_info(const MacFile& file, const std::string& info) {
    const int error = write_attribute(file.open.get(), kFinderInfo, info);
    if (error == 0 || !is_without_attributes(error)) return error;
    AppleDouble parts;
    const int unread = read_companion(file, parts);
    if (unread != 0 && unread != ENOENT) return unread;
    parts.set_part(AppleDouble::kFinderInfo, info);
    return write_companion(file, parts);
}

}  // namespace

int read_mac_code(const std::string& path, MacCode which, std::string& code) {
    code.clear();
    const MacFile file(path);
    if (file.error != 0) return file.error;
    std::string info;
    if (const int error = read_finder_info(file, info)) return error;
    code = whole_info(info).substr(place_of(which), kMacCodeSize);
    if (code == std::string(kMacCodeSize, '\0')) code.clear();
    return 0;
}

int write_mac_code(const std::string& path, MacCode which, std::string code) {
    if (code.size() > kMacCodeSize) return EINVAL;
    code.resize(kMacCodeSize, code.empty() ? '\0' : ' ');
    const MacFile file(path);
    if (file.error != 0) return file.error;
    std::string info;
    if (const int error = read_finder_info(file, info)) return error;
    info = whole_info(info);
    info.replace(place_of(which), kMacCodeSize, code);
    return write_finder_info(file, info);
}

int resource_fork_length(const std::string& path, std::uint64_t& length) {
    length = 0;
    const MacFile file(path);
    if (file.error != 0) return file.error;
    AppleDouble parts;
    if (read_companion(file, parts) == 0) length = parts.part(AppleDouble::kResourceFork).size();
    return 0;
}

}  // namespace tavrik::core
