#include "toolkit/core/folder_listing.h"

#include "toolkit/core/file_times.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>

namespace tavrik::core {
namespace {

constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;
// Longer than the ticks in which systems stamp their files.
constexpr std::int64_t kYoung = 50'000'000;

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * kNanosecondsPerSecond + time.tv_nsec;
}

bool is_same_time(const timespec& a, const timespec& b) { return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec; }

}  // namespace

bool FolderListing::is_current(const struct stat& status) const {
    return known_ && !may_be_old_ && is_same_file(status, folder_) &&
           is_same_time(modification_time(status), modification_time(folder_)) &&
           is_same_time(change_time(status), change_time(folder_));
}

bool FolderListing::continues_walk(std::size_t position) const {
    return known_ && position != 0 && position + 1 >= last_ && position <= last_ + 1;
}

int FolderListing::renew(const FileSystem& files, const std::string& path) {
    struct stat status {};
    if (const int error = files.look(path, Links::kFollow, status)) {
        known_ = false;
        return error;
    }
    if (is_current(status)) return 0;
    known_ = false;
    names_.clear();
    if (const int error = files.list(path, names_, folder_)) return error;
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    may_be_old_ = nanoseconds(now) - nanoseconds(change_time(folder_)) < kYoung;
    std::ranges::sort(names_);
    known_ = true;
    return 0;
}

int FolderListing::count(const FileSystem& files, const std::string& path, std::size_t& count) {
    count = 0;
    if (const int error = renew(files, path)) return error;
    count = names_.size();
    // A walk from either end begins here.
    last_ = count;
    return 0;
}

int FolderListing::name_at(const FileSystem& files, const std::string& path, std::size_t position, std::string& name) {
    if (!continues_walk(position)) {
        if (const int error = renew(files, path)) return error;
    }
    last_ = position;
    if (position >= names_.size()) return ENOENT;
    name = names_[position];
    return 0;
}

}  // namespace tavrik::core
