#pragma once

#include "toolkit/core/byte_store.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tavrik::core {

struct OpenedFile;

// An open regular file, which is changed in place.
class FileStore final : public ByteStore {
public:
    // Opens only what is a regular file, and never waits for it.
    static OpenedFile open(const std::string& path, bool write);
    // A new file, or one that was there and loses its bytes.
    static OpenedFile create(const std::string& path);
    // The same without the loss: every write goes to the end that the file then has, whoever else writes.
    static OpenedFile append(const std::string& path);

    FileStore(FileStore&& other) noexcept;
    FileStore& operator=(FileStore&&) = delete;
    ~FileStore() override;

    int descriptor() const override { return descriptor_; }
    std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) override;
    int write(std::uint64_t position, std::string_view bytes) override;
    std::uint64_t length(int& error) override;
    int set_length(std::uint64_t length) override;
    int close() override;

private:
    static OpenedFile open_with(const std::string& path, int flags);
    FileStore(int descriptor, std::string path, int flags);

    int descriptor_;
    bool appends_;
};

struct OpenedFile {
    std::optional<FileStore> file;
    int error = 0;
    std::string reason;  // where there is no system error
};

}  // namespace tavrik::core
