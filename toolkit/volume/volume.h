#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The seam between the core and what keeps a folder tree inside one file. Paths are bytes, '/' between the names,
// without
// "." and ".."; the root is the empty path. Errors are the system's numbers, 0 for none.
namespace tavrik::volume {

enum class Kind : std::uint8_t { kFile, kFolder, kLink };
enum class Access : std::uint8_t { kRead, kWrite };

struct Entry {
    std::string name;
    Kind kind = Kind::kFolder;
    std::uint64_t size = 0;
    std::uint32_t mode = 0;     // permission bits only
    std::int64_t modified = 0;  // seconds since 1970
};

// An open file. What is written lies in memory until flush() stores all of it at once. The file holds its volume, and
// stays readable when it is moved or removed.
class File {
public:
    virtual ~File() = default;

    // How many bytes were read: fewer only at the end of the file or with an error.
    virtual std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) = 0;
    virtual int write(std::uint64_t position, std::string_view bytes) = 0;
    virtual std::uint64_t length(int& error) = 0;
    virtual int set_length(std::uint64_t length) = 0;
    // After an error it can be tried again.
    virtual int flush() = 0;
};

// An open volume. Each change is either stored for good when the call returns 0, or not made at all. Nothing here
// follows a link.
class Volume {
public:
    virtual ~Volume() = default;

    // The file that the tree is in, absolute; and its device and inode.
    virtual const std::string& path() const = 0;
    virtual std::pair<dev_t, ino_t> identity() const = 0;
    virtual bool writable() const = 0;

    virtual int stat(std::string_view path, Entry& entry) = 0;
    // In the order of the names' bytes.
    virtual int list(std::string_view folder, std::vector<Entry>& entries) = 0;
    virtual int read_link(std::string_view path, std::string& target) = 0;
    virtual std::unique_ptr<File> open(std::string_view path, Access access, int& error) = 0;

    // These replace nothing: EEXIST.
    virtual int create_file(std::string_view path, std::uint32_t mode) = 0;
    virtual int create_folder(std::string_view path, std::uint32_t mode) = 0;
    virtual int create_link(std::string_view path, std::string_view target) = 0;
    virtual int move(std::string_view from, std::string_view to) = 0;

    // Folders only when they are empty.
    virtual int remove(std::string_view path) = 0;
    virtual int set_mode(std::string_view path, std::uint32_t mode) = 0;
    virtual int set_modified(std::string_view path, std::int64_t seconds) = 0;

    // All that the steps change is stored at once when they return 0; with an error none of it is made. The steps throw
    // nothing.
    virtual int change_at_once(const std::function<int()>& steps) = 0;
};

// kCreate makes a new volume where there is no file, or an empty one.
enum class Mode : std::uint8_t { kOpen, kCreate };

struct Opened {
    std::shared_ptr<Volume> volume;
    int error = 0;
    bool is_foreign = false;  // the file is there, but is no whole volume
    std::string reason;       // why there is no volume, in words
};

// The module of volumes exports this under the name kOpenVolumeSymbol.
using OpenVolume = void (*)(const std::string& path, Mode mode, Opened& opened);
inline constexpr const char* kOpenVolumeSymbol = "tavrik_open_volume";

}  // namespace tavrik::volume
