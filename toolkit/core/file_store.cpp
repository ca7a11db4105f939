#include "toolkit/core/file_store.h"

#include "toolkit/core/descriptor_calls.h"
#include "toolkit/core/file_place.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

namespace tavrik::core {
namespace {

std::string what_it_is(mode_t mode) {
    if (S_ISDIR(mode)) return "it is a folder";
    if (S_ISFIFO(mode)) return "it is a pipe, not a file";
    if (S_ISSOCK(mode)) return "it is a socket, not a file";
    return "it is a device, not a file";
}

}  // namespace

OpenedFile FileStore::open(const std::string& path, bool write) { return open_with(path, write ? O_RDWR : O_RDONLY); }

OpenedFile FileStore::create(const std::string& path) {
    OpenedFile opened = open_with(path, O_RDWR | O_CREAT);
    // Emptied once it is known to be a file, and not while it is opened.
    const int error = opened.file ? opened.file->set_length(0) : 0;
    if (error == 0) return opened;
    return {.file = {}, .error = error, .reason = {}};
}

OpenedFile FileStore::append(const std::string& path) { return open_with(path, O_WRONLY | O_APPEND | O_CREAT); }

OpenedFile FileStore::open_with(const std::string& path, int flags) {
    const Place place(path);
    // Looked at before it is opened, because opening a device can do something already.
    struct stat status {};
    const int error = place.look(Links::kFollow, status);
    const bool is_new = error == ENOENT && place.error() == 0 && (flags & O_CREAT) != 0;
    if (error != 0 && !is_new) return {.file = {}, .error = error, .reason = {}};
    if (!is_new && !S_ISREG(status.st_mode)) return {.file = {}, .error = 0, .reason = what_it_is(status.st_mode)};

    const int descriptor = retried(
        [&] { return ::openat(place.folder(), place.name(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666); });
    if (descriptor < 0) return {.file = {}, .error = errno, .reason = {}};
    FileStore file(descriptor, path, flags);
    if (::fstat(descriptor, &status) != 0) return {.file = {}, .error = errno, .reason = {}};
    if (!S_ISREG(status.st_mode)) return {.file = {}, .error = 0, .reason = what_it_is(status.st_mode)};
    return {.file = std::move(file), .error = 0, .reason = {}};
}

FileStore::FileStore(int descriptor, std::string path, int flags)
    : ByteStore(std::move(path), (flags & O_ACCMODE) != O_RDONLY),
      descriptor_(descriptor),
      appends_((flags & O_APPEND) != 0) {}

FileStore::FileStore(FileStore&& other) noexcept
    : ByteStore(std::move(other)), descriptor_(std::exchange(other.descriptor_, -1)), appends_(other.appends_) {}

FileStore::~FileStore() { FileStore::close(); }

std::size_t FileStore::read(std::uint64_t position, std::span<char> bytes, int& error) {
    return read_at(descriptor_, position, bytes, error);
}

int FileStore::write(std::uint64_t position, std::string_view bytes) {
    return appends_ ? write_next(descriptor_, bytes) : write_at(descriptor_, position, bytes);
}

std::uint64_t FileStore::length(int& error) { return length_of(descriptor_, error); }

int FileStore::set_length(std::uint64_t length) { return set_length_of(descriptor_, length); }

int FileStore::close() { return descriptor_ < 0 ? 0 : close_descriptor(std::exchange(descriptor_, -1)); }

}  // namespace tavrik::core
