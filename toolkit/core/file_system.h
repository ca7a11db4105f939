#pragma once

#include "toolkit/core/byte_store.h"
#include "toolkit/core/file_tree.h"
#include "toolkit/volume/volume.h"

#include <sys/stat.h>
#include <time.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik::core {

enum class Opening : std::uint8_t {
    kRead,
    kWrite,
    kCreate,  // a new file, or one that was there and loses its bytes
    kAppend,  // the same without the loss: all writes go to its end
};

struct OpenedStore {
    std::unique_ptr<ByteStore> store;
    int error = 0;
    std::string reason = {};  // where the number alone doesn't tell
};

// What items lie in: the disk, or a volume. Paths are absolute, and "/" is the root. Errors are the system's numbers,
// 0 for none.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    // nullptr for the disk.
    virtual std::shared_ptr<volume::Volume> volume() const = 0;
    virtual std::string_view name_of(std::string_view path) const = 0;
    // The path with that of the volume in front, and back from it; nothing if it leads elsewhere.
    virtual std::string full_path(const std::string& path) const = 0;
    virtual std::optional<std::string> own_path(const std::string& full_path) const = 0;
    // Without "..".
    virtual std::string plain_path(const std::string& path) const = 0;
    // What the disk has there: the file of a volume for all that is in it.
    virtual std::string path_on_disk(const std::string& path) const = 0;

    virtual int look(const std::string& path, Links links, struct stat& status) const = 0;
    // The names in a folder in any order, and what was known of it before.
    virtual int list(const std::string& path, std::vector<std::string>& names, struct stat& folder) const = 0;
    virtual int read_link(const std::string& path, std::string& target) const = 0;
    // A link that leads nowhere gives the path that isn't there.
    virtual int follow_links(std::string& path) const = 0;
    virtual bool allows(const std::string& path, int what) const = 0;
    virtual int creation_time(const std::string& path, Links links, timespec& time) const = 0;

    virtual int set_mode(const std::string& path, Links links, mode_t mode) const = 0;
    virtual int set_owner(const std::string& path, Links links, uid_t owner, gid_t group) const = 0;
    virtual int set_modification_time(const std::string& path, Links links, const timespec& time) const = 0;

    // These replace nothing, and follow no link at the end of the path.
    virtual int make_file(const std::string& path, mode_t mode) const = 0;
    virtual int make_folder(const std::string& path, mode_t mode) const = 0;
    virtual int make_link(const std::string& path, const std::string& target) const = 0;
    virtual int rename(const std::string& path, const std::string& name) const = 0;
    virtual Outcome move(const std::string& from, const std::string& to) const = 0;

    virtual int remove(const std::string& path) const = 0;
    // With all that is in it. `touched` tells after an error whether something of it may be gone.
    virtual int remove_all(const std::string& path, bool& touched) const = 0;

    // Opens only what is a regular file, or can become one.
    virtual OpenedStore open(const std::string& path, Opening opening) const = 0;
    // Lets `make` make something at the path that it is given, which appears at this one whole or not at all.
    virtual Outcome make_whole(const std::string& path,
                               const std::function<Outcome(const std::string& path)>& make) const = 0;
};

using FileSystemPointer = std::shared_ptr<const FileSystem>;

const FileSystemPointer& disk();
FileSystemPointer file_system_of(std::shared_ptr<volume::Volume> volume);

// Where something lies.
struct Location {
    const FileSystem& files;
    const std::string& path;
};

// As copy_tree and move_tree, wherever the two lie.
Outcome copy_item(const Location& from, Links links, const Location& to);
Outcome move_item(const Location& from, const Location& to);

}  // namespace tavrik::core
