#pragma once

#include "toolkit/volume/volume.h"

#include <sys/types.h>

#include <string>
#include <utility>

namespace tavrik::volume {

// The file that a volume is in, held against other programs that open volumes. SQLite's own locks are held only while
// it reads or writes, so that its tools can look into a volume that is open; and they are lost when the process closes
// any other descriptor of the file, which these are not.
class VolumeFile {
public:
    // Throws Failure: not there, no regular file, in use, no volume at all.
    VolumeFile(const std::string& path, Mode mode);
    ~VolumeFile();
    VolumeFile(const VolumeFile&) = delete;
    VolumeFile& operator=(const VolumeFile&) = delete;

    const std::string& path() const { return path_; }
    bool writable() const { return writable_; }
    std::pair<dev_t, ino_t> identity() const;
    std::uint64_t size() const;
    std::int64_t modified() const;

private:
    void open(Mode mode);
    void lock() const;
    void check_header() const;

    std::string path_;
    int descriptor_ = -1;
    bool writable_ = true;
};

}  // namespace tavrik::volume
