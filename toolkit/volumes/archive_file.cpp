#include "toolkit/volumes/archive_file.h"

#include <algorithm>
#include <cerrno>
#include <new>
#include <utility>

namespace tavrik::volume {

ArchiveFile::ArchiveFile(std::shared_ptr<Archive> archive, std::shared_ptr<Content> content, Access access)
    : archive_(std::move(archive)), content_(std::move(content)), access_(access) {}

ArchiveFile::~ArchiveFile() { archive_->store(*content_); }

std::size_t ArchiveFile::read(std::uint64_t position, std::span<char> bytes, int& error) {
    error = archive_->load(*content_);
    if (error != 0 || position >= content_->bytes.size()) return 0;
    const std::string_view there = std::string_view(content_->bytes).substr(position, bytes.size());
    std::ranges::copy(there, bytes.begin());
    return there.size();
}

// Makes the bytes at least that many.
int ArchiveFile::prepare_change(std::uint64_t length) {
    if (access_ != Access::kWrite) return EBADF;
    if (length > archive_->longest_file()) return EFBIG;
    if (const int error = archive_->load(*content_)) return error;
    try {
        if (length > content_->bytes.size()) content_->bytes.resize(length);
    } catch (const std::bad_alloc&) {
        return ENOMEM;
    }
    content_->is_changed = true;
    return 0;
}

int ArchiveFile::write(std::uint64_t position, std::string_view bytes) {
    if (bytes.empty()) return 0;
    if (position > archive_->longest_file()) return EFBIG;
    if (const int error = prepare_change(position + bytes.size())) return error;
    content_->bytes.replace(position, bytes.size(), bytes);
    return 0;
}

std::uint64_t ArchiveFile::length(int& error) {
    error = archive_->load(*content_);
    return error == 0 ? content_->bytes.size() : 0;
}

int ArchiveFile::set_length(std::uint64_t length) {
    if (const int error = prepare_change(length)) return error;
    content_->bytes.resize(length);
    return 0;
}

int ArchiveFile::flush() { return archive_->store(*content_); }

}  // namespace tavrik::volume
