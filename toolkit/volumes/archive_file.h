#pragma once

#include "toolkit/volumes/archive.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace tavrik::volume {

// An open file of an archive. Its end stores what hasn't been.
class ArchiveFile final : public File {
public:
    ArchiveFile(std::shared_ptr<Archive> archive, std::shared_ptr<Content> content, Access access);
    ~ArchiveFile() override;
    ArchiveFile(const ArchiveFile&) = delete;
    ArchiveFile& operator=(const ArchiveFile&) = delete;

    std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) override;
    int write(std::uint64_t position, std::string_view bytes) override;
    std::uint64_t length(int& error) override;
    int set_length(std::uint64_t length) override;
    int flush() override;

private:
    int prepare_change(std::uint64_t length);

    std::shared_ptr<Archive> archive_;
    std::shared_ptr<Content> content_;
    Access access_;
};

}  // namespace tavrik::volume
