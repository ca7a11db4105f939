#pragma once

#include "toolkit/core/file_system.h"

#include <sys/stat.h>
#include <time.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tavrik::core {

// The names in a folder in the order of their bytes, read again when the folder has changed. Errors are the system's
// numbers, 0 for none.
class FolderListing {
public:
    int count(const FileSystem& files, const std::string& path, std::size_t& count);
    // The name at a position from 0; ENOENT behind the last. Neighbouring positions, asked for one after the other, are
    // a walk, which keeps to what it began with: a folder may change under it, and none is left out or comes twice.
    int name_at(const FileSystem& files, const std::string& path, std::size_t position, std::string& name);
    void forget() { known_ = false; }

private:
    int renew(const FileSystem& files, const std::string& path);
    bool is_current(const struct stat& status) const;
    bool continues_walk(std::size_t position) const;

    std::vector<std::string> names_;
    bool known_ = false;
    // A time stamp so young that a change right behind it would have the same one.
    bool may_be_old_ = false;
    struct stat folder_ {};
    std::size_t last_ = 0;
};

}  // namespace tavrik::core
