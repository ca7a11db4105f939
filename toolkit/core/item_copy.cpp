// Copies between the disk and volumes, and inside of volumes.
#include "toolkit/core/failure.h"
#include "toolkit/core/file_system.h"
#include "toolkit/core/file_times.h"
#include "toolkit/core/path.h"
#include "toolkit/core/scheduler.h"

#include <cerrno>
#include <system_error>
#include <utility>

namespace tavrik::core {
namespace {

constexpr std::size_t kAtOnce = std::size_t{256} * 1024;
constexpr const char* kIntoItself = "a folder can't go into itself";
constexpr const char* kVolumeIntoItself = "a volume can't go into itself";
// Others may not look into what is being copied.
constexpr mode_t kFileMode = 0600;
constexpr mode_t kFolderMode = 0700;
// The rights that go with an owner stay behind: what comes out of a volume has another one.
constexpr mode_t kKeptMode = 01777;

int copy_bytes(ByteStore& source, ByteStore& target) {
    std::vector<char> bytes(kAtOnce);
    int error = 0;
    for (std::uint64_t at = 0;;) {
        const std::size_t count = source.read(at, bytes, error);
        if (error != 0) return error;
        if (count == 0) return target.close();
        if (const int failed = target.write(at, {bytes.data(), count})) return failed;
        at += count;
    }
}

bool is_file_of(const std::shared_ptr<volume::Volume>& volume, const struct stat& status) {
    return volume && volume->identity() == std::pair(status.st_dev, status.st_ino);
}

bool lies_in(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (folder == "/" || path.size() == folder.size() || path[folder.size()] == '/');
}

// One copying, from one file system into another or the same.
class Copying {
public:
    Copying(const FileSystem& from, const FileSystem& to) : from_(from), to_(to) {}

    // The paths can't be so long that this goes too deep: one of them lies in a volume.
    Outcome run(const std::string& from, const std::string& to) {
        struct stat status {};
        if (const int error = from_.look(from, Links::kItself, status)) return {error, {}};
        if (!from_.volume() && is_file_of(to_.volume(), status)) return {EINVAL, kVolumeIntoItself};
        if (S_ISLNK(status.st_mode)) return {copy_link(from, to), {}};
        if (S_ISREG(status.st_mode)) return {copy_file(from, to, status), {}};
        return S_ISDIR(status.st_mode) ? copy_folder(from, to, status) : Outcome{ENOTSUP, {}};
    }

private:
    int copy_link(const std::string& from, const std::string& to) {
        std::string target;
        const int error = from_.read_link(from, target);
        return error != 0 ? error : to_.make_link(to, target);
    }

    int copy_file(const std::string& from, const std::string& to, const struct stat& status) {
        const OpenedStore source = from_.open(from, Opening::kRead);
        if (!source.store) return source.error;
        if (const int failed = to_.make_file(to, kFileMode)) return failed;
        const OpenedStore target = to_.open(to, Opening::kWrite);
        if (!target.store) return target.error;
        if (const int failed = copy_bytes(*source.store, *target.store)) return failed;
        return set_properties(to, status);
    }

    Outcome copy_folder(const std::string& from, const std::string& to, const struct stat& status) {
        std::vector<std::string> names;
        struct stat listed {};
        if (const int error = from_.list(from, names, listed)) return {error, {}};
        if (const int error = to_.make_folder(to, kFolderMode)) return {error, {}};
        for (const std::string& name : names) {
            Outcome outcome = run(join(from, name), join(to, name));
            if (outcome.error == 0) continue;
            if (outcome.reason.empty()) {
                outcome.reason = readable(name) + ": " + std::generic_category().message(outcome.error);
            }
            return outcome;
        }
        return {set_properties(to, status), {}};
    }

    int set_properties(const std::string& path, const struct stat& status) {
        if (const int error = to_.set_mode(path, Links::kFollow, status.st_mode & kKeptMode)) return error;
        return to_.set_modification_time(path, Links::kItself, modification_time(status));
    }

    const FileSystem& from_;
    const FileSystem& to_;
};

Outcome copy_across(const Location& from, const Location& to) {
    const bool is_one_volume = from.files.volume() == to.files.volume();
    struct stat status {};
    if (const int error = from.files.look(from.path, Links::kItself, status)) return {error, {}};
    if (S_ISDIR(status.st_mode) && is_one_volume && lies_in(to.path, from.path)) return {EINVAL, kIntoItself};
    return on_main_stack([&] {
        return to.files.make_whole(
            to.path, [&](const std::string& path) { return Copying(from.files, to.files).run(from.path, path); });
    });
}

}  // namespace

Outcome copy_item(const Location& from, Links links, const Location& to) {
    if (!from.files.volume() && !to.files.volume()) return copy_tree(from.path, links, to.path);
    std::string source = from.path;
    if (links == Links::kFollow) {
        if (const int error = from.files.follow_links(source)) return {error, {}};
    }
    return copy_across({from.files, source}, to);
}

Outcome move_item(const Location& from, const Location& to) {
    if (from.files.volume() == to.files.volume()) return from.files.move(from.path, to.path);
    Outcome outcome = copy_across(from, to);
    if (outcome.error != 0) return outcome;
    bool touched = false;
    outcome.error = from.files.remove_all(from.path, touched);
    if (outcome.error == 0 || touched) return outcome;
    // The copy goes again: everything is as it was.
    to.files.remove_all(to.path, touched);
    return outcome;
}

}  // namespace tavrik::core
