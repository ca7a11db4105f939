#include "toolkit/volumes/volume_file.h"

#include "toolkit/volumes/failure.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <thread>

namespace tavrik::volume {
namespace {

constexpr std::chrono::milliseconds kLockTimeout{2000};
constexpr std::chrono::milliseconds kLockInterval{20};
constexpr std::string_view kHeader{"SQLite format 3\0", 16};
constexpr int kFlags = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;

// Closes what a constructor that throws leaves.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int release() { return std::exchange(number_, -1); }

private:
    int number_;
};

struct stat status_of(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) throw Failure{errno};
    return status;
}

std::string absolute(const std::string& path) {
    if (path.find('\0') != std::string::npos) throw Failure{EINVAL};
    std::error_code error;
    const std::filesystem::path result = std::filesystem::absolute(path, error);
    if (error) throw Failure{error.value()};
    return result.native();
}

}  // namespace

VolumeFile::VolumeFile(const std::string& path, Mode mode) : path_(absolute(path)) {
    open(mode);
    Descriptor guard(descriptor_);
    if (!S_ISREG(status_of(descriptor_).st_mode)) throw Failure{EINVAL, false, "it is no regular file"};
    // Known without the lock, so nobody waits for it; but another program may be making a volume of an empty file.
    if (mode == Mode::kCreate && size() > 0) throw Failure{EEXIST};
    lock();
    if (mode == Mode::kCreate && size() > 0) throw Failure{EEXIST};
    if (mode == Mode::kOpen) check_header();
    guard.release();
}

VolumeFile::~VolumeFile() { ::close(descriptor_); }

void VolumeFile::open(Mode mode) {
    // Looked at first, because opening a device can do something already.
    struct stat status {};
    if (::stat(path_.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        throw Failure{EINVAL, false, "it is no regular file"};
    constexpr mode_t kNewMode = 0666;
    const int creating = mode == Mode::kCreate ? O_CREAT : 0;
    descriptor_ = ::open(path_.c_str(), O_RDWR | kFlags | creating, kNewMode);
    if (descriptor_ < 0 && mode == Mode::kOpen && (errno == EACCES || errno == EPERM || errno == EROFS)) {
        writable_ = false;
        descriptor_ = ::open(path_.c_str(), O_RDONLY | kFlags);
    }
    if (descriptor_ < 0) throw Failure{errno};
}

void VolumeFile::lock() const {
    const auto end = std::chrono::steady_clock::now() + kLockTimeout;
    while (::flock(descriptor_, (writable_ ? LOCK_EX : LOCK_SH) | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) throw Failure{errno};
        if (std::chrono::steady_clock::now() >= end) throw Failure{EBUSY, false, "another program has it open"};
        std::this_thread::sleep_for(kLockInterval);
    }
}

void VolumeFile::check_header() const {
    std::array<char, kHeader.size()> start{};
    const ssize_t count = ::pread(descriptor_, start.data(), start.size(), 0);
    if (count < 0) throw Failure{errno};
    if (std::string_view(start.data(), static_cast<std::size_t>(count)) != kHeader)
        throw Failure{EIO, true, "it is no volume"};
}

std::pair<dev_t, ino_t> VolumeFile::identity() const {
    const struct stat status = status_of(descriptor_);
    return {status.st_dev, status.st_ino};
}

std::uint64_t VolumeFile::size() const { return static_cast<std::uint64_t>(status_of(descriptor_).st_size); }

std::int64_t VolumeFile::modified() const { return status_of(descriptor_).st_mtime; }

}  // namespace tavrik::volume
