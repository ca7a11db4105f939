#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::core {

struct OpenedFile;
class Place;

// An open regular file. Reads come through a buffer, and neighbouring writes are gathered in one; the file itself is
// changed in place. Errors are the system's numbers, 0 for none.
class FileStore {
public:
    // Opens only what is a regular file, and never waits for it.
    static OpenedFile open(const std::string& path, bool write);
    // Opens an empty file for writing: a new one, or a regular file that loses what it has.
    static OpenedFile create(const std::string& path);

    FileStore(FileStore&& other) noexcept;
    FileStore& operator=(FileStore&&) = delete;
    ~FileStore();

    const std::string& path() const { return path_; }
    bool writable() const { return writable_; }

    // How many bytes were read: fewer only at the end of the file or with an error.
    std::size_t read(std::uint64_t position, std::span<char> bytes, int& error);
    int write(std::uint64_t position, std::string_view bytes);
    int flush();
    // What has been read ahead may be old by now, where others write to the file too.
    void forget_read() { read_.clear(); }
    int close();
    std::uint64_t length(int& error);
    int set_length(std::uint64_t length);

private:
    FileStore(int descriptor, std::string path, bool writable);
    static OpenedFile open_at(const Place& place, const std::string& path, bool write, int creation);

    std::string_view buffered(std::uint64_t position) const;

    int descriptor_;
    std::string path_;
    bool writable_;
    std::uint64_t read_at_ = 0;
    std::vector<char> read_;
    std::uint64_t write_at_ = 0;
    std::vector<char> written_;
};

struct OpenedFile {
    std::optional<FileStore> file;
    int error = 0;
    std::string reason;  // where there is no system error
};

}  // namespace tavrik::core
