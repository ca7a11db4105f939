// Volumes: any bytes as the file. What opens is read whole and then changed.
#include "toolkit/volume/volume.h"

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

extern "C" void tavrik_open_volume(const std::string& path, tavrik::volume::Mode mode, tavrik::volume::Opened& opened);

namespace tavrik::volume {
namespace {

// A path for the length of the process. What SQLite may put beside the file goes with it.
class ScratchFile {
public:
    ScratchFile() {
        const int descriptor = ::mkstemp(path_.data());
        if (descriptor < 0) std::abort();
        ::close(descriptor);
    }
    ~ScratchFile() { remove_all(); }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    const std::string& holding(const char* bytes, std::size_t size) {
        remove_all();
        std::ofstream(path_, std::ios::binary).write(bytes, static_cast<std::streamsize>(size));
        return path_;
    }

private:
    void remove_all() {
        for (const char* const end : {"", "-journal", "-wal", "-shm"}) ::unlink((path_ + end).c_str());
    }

    std::string path_ = "/tmp/tavrik-fuzz-XXXXXX";
};

// `changes` are how many more to make: each waits for the disk.
void read_and_change(Volume& volume, const std::string& folder, int& changes) {
    std::vector<Entry> entries;
    if (volume.list(folder, entries) != 0) return;
    for (const Entry& entry : entries) {
        const std::string path = folder.empty() ? entry.name : folder + '/' + entry.name;
        int error = 0;
        std::string target;
        if (entry.kind == Kind::kFolder) read_and_change(volume, path, changes);
        if (entry.kind == Kind::kLink) volume.read_link(path, target);
        if (entry.kind == Kind::kFile) {
            const auto file = volume.open(path, Access::kWrite, error);
            if (file && file->length(error) < 4096 && changes > 0) file->write(1, "changed");
        }
        if (--changes <= 0) continue;
        volume.set_modified(path, entry.modified + 1);
        if (entry.size % 2 == 0) volume.remove(path);
    }
    if (--changes <= 0) return;
    volume.create_folder(folder.empty() ? "new" : folder + "/new", 0755);
    volume.move(folder, "moved");
}

}  // namespace
}  // namespace tavrik::volume

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static tavrik::volume::ScratchFile scratch;
    tavrik::volume::Opened opened;
    tavrik_open_volume(scratch.holding(reinterpret_cast<const char*>(data), size), tavrik::volume::Mode::kOpen, opened);
    int changes = 20;
    if (opened.volume) tavrik::volume::read_and_change(*opened.volume, {}, changes);
    return 0;
}
