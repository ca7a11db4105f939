#include "bench/streams/files.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>

namespace tavrik::bench {
namespace {

struct Folder {
    Folder() : path((std::filesystem::temp_directory_path() / "tavrik-bench-XXXXXX").string()) {
        if (::mkdtemp(path.data()) == nullptr) std::abort();
    }
    ~Folder() {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }

    std::string path;
};

}  // namespace

std::string new_file(const char* name, std::string_view bytes) {
    static const Folder folder;
    std::string path = folder.path + "/" + name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

}  // namespace tavrik::bench
