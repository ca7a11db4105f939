#include "toolkit/core/file_store.h"

#include "toolkit/core/file_place.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <utility>

namespace tavrik::core {
namespace {

constexpr std::size_t kReadAhead = std::size_t{16} * 1024;
constexpr std::size_t kMostGathered = std::size_t{64} * 1024;
constexpr std::uint64_t kFarthest = std::numeric_limits<off_t>::max();

template <class Call>
auto retried(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

// As many bytes as there are, however often the system returns early.
std::size_t read_fully(int descriptor, std::uint64_t position, std::span<char> bytes, int& error) {
    std::size_t done = 0;
    while (done < bytes.size() && position + done < kFarthest) {
        const std::uint64_t at = position + done;
        const std::size_t wanted = std::min<std::uint64_t>(bytes.size() - done, kFarthest - at);
        const ssize_t count =
            retried([&] { return ::pread(descriptor, bytes.data() + done, wanted, static_cast<off_t>(at)); });
        if (count < 0) error = errno;
        if (count <= 0) break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

int write_fully(int descriptor, std::uint64_t position, std::string_view bytes) {
    if (position > kFarthest - bytes.size()) return EFBIG;
    while (!bytes.empty()) {
        const ssize_t count =
            retried([&] { return ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(position)); });
        if (count < 0) return errno;
        if (count == 0) return EIO;
        bytes.remove_prefix(static_cast<std::size_t>(count));
        position += static_cast<std::uint64_t>(count);
    }
    return 0;
}

std::string what_it_is(mode_t mode) {
    if (S_ISDIR(mode)) return "it is a folder";
    if (S_ISFIFO(mode)) return "it is a pipe, not a file";
    if (S_ISSOCK(mode)) return "it is a socket, not a file";
    return "it is a device, not a file";
}

}  // namespace

OpenedFile FileStore::open(const std::string& path, bool write) {
    const Place place(path);
    // Looked at before it is opened, because opening a device can do something already.
    struct stat status {};
    if (const int error = place.look(Links::kFollow, status)) return {.file = {}, .error = error, .reason = {}};
    if (!S_ISREG(status.st_mode)) return {.file = {}, .error = 0, .reason = what_it_is(status.st_mode)};
    return open_at(place, path, write, 0);
}

OpenedFile FileStore::create(const std::string& path) {
    const Place place(path);
    struct stat status {};
    const int error = place.look(Links::kFollow, status);
    if (error != 0 && error != ENOENT) return {.file = {}, .error = error, .reason = {}};
    if (error == 0 && !S_ISREG(status.st_mode)) return {.file = {}, .error = 0, .reason = what_it_is(status.st_mode)};
    OpenedFile opened = open_at(place, path, true, O_CREAT);
    if (!opened.file) return opened;
    if (const int failed = opened.file->set_length(0)) return {.file = {}, .error = failed, .reason = {}};
    return opened;
}

OpenedFile FileStore::open_at(const Place& place, const std::string& path, bool write, int creation) {
    if (place.error() != 0) return {.file = {}, .error = place.error(), .reason = {}};
    const int mode = (write ? O_RDWR : O_RDONLY) | creation | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    const int descriptor = retried([&] { return ::openat(place.folder(), place.name(), mode, 0666); });
    if (descriptor < 0) return {.file = {}, .error = errno, .reason = {}};
    FileStore file(descriptor, path, write);
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return {.file = {}, .error = errno, .reason = {}};
    if (!S_ISREG(status.st_mode)) return {.file = {}, .error = 0, .reason = what_it_is(status.st_mode)};
    return {.file = std::move(file), .error = 0, .reason = {}};
}

FileStore::FileStore(int descriptor, std::string path, bool writable)
    : descriptor_(descriptor), path_(std::move(path)), writable_(writable) {}

FileStore::FileStore(FileStore&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)),
      path_(std::move(other.path_)),
      writable_(other.writable_),
      read_at_(other.read_at_),
      read_(std::move(other.read_)),
      write_at_(other.write_at_),
      written_(std::move(other.written_)) {}

FileStore::~FileStore() { close(); }

std::string_view FileStore::buffered(std::uint64_t position) const {
    if (position < read_at_ || position - read_at_ >= read_.size()) return {};
    return std::string_view(read_.data(), read_.size()).substr(position - read_at_);
}

std::size_t FileStore::read(std::uint64_t position, std::span<char> bytes, int& error) {
    error = flush();
    if (error != 0) return 0;
    if (bytes.size() >= kReadAhead) return read_fully(descriptor_, position, bytes, error);
    if (buffered(position).size() < bytes.size()) {
        read_.resize(kReadAhead);
        read_at_ = position;
        read_.resize(read_fully(descriptor_, position, read_, error));
    }
    const std::string_view there = buffered(position).substr(0, bytes.size());
    std::ranges::copy(there, bytes.begin());
    return there.size();
}

int FileStore::write(std::uint64_t position, std::string_view bytes) {
    if (bytes.empty()) return 0;
    if (position > kFarthest - bytes.size()) return EFBIG;
    read_.clear();
    const bool follows = !written_.empty() && position == write_at_ + written_.size();
    if (!follows || written_.size() + bytes.size() > kMostGathered) {
        if (const int error = flush()) return error;
        if (bytes.size() >= kMostGathered) return write_fully(descriptor_, position, bytes);
        write_at_ = position;
    }
    written_.insert(written_.end(), bytes.begin(), bytes.end());
    return 0;
}

int FileStore::flush() {
    if (written_.empty()) return 0;
    const int error = write_fully(descriptor_, write_at_, {written_.data(), written_.size()});
    written_.clear();
    return error;
}

int FileStore::close() {
    if (descriptor_ < 0) return 0;
    const int flushed = flush();
    const int closed = ::close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR ? 0 : errno;
    return flushed != 0 ? flushed : closed;
}

std::uint64_t FileStore::length(int& error) {
    struct stat status {};
    error = ::fstat(descriptor_, &status) == 0 ? 0 : errno;
    const auto in_file = error == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
    return written_.empty() ? in_file : std::max(in_file, write_at_ + written_.size());
}

int FileStore::set_length(std::uint64_t length) {
    if (length > kFarthest) return EFBIG;
    if (const int error = flush()) return error;
    read_.clear();
    return retried([&] { return ::ftruncate(descriptor_, static_cast<off_t>(length)); }) == 0 ? 0 : errno;
}

}  // namespace tavrik::core
