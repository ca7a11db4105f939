// The disk, as one of the things that items lie in.
#include "toolkit/core/file_dates.h"
#include "toolkit/core/file_store.h"
#include "toolkit/core/file_system.h"
#include "toolkit/core/path.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace tavrik::core {
namespace {

int flags_for(Links links) { return links == Links::kItself ? AT_SYMLINK_NOFOLLOW : 0; }

// Makes a system's call at a place.
template <class Call>
int at(const std::string& path, Call call) {
    const Place place(path);
    if (place.error() != 0) return place.error();
    return call(place.folder(), place.name()) == 0 ? 0 : errno;
}

OpenedFile open_file(const std::string& path, Opening opening) {
    if (opening == Opening::kCreate) return FileStore::create(path);
    if (opening == Opening::kAppend) return FileStore::append(path);
    return FileStore::open(path, opening == Opening::kWrite);
}

// Brings a file to the disk, or a folder with all that is in it.
int sync(const Descriptor& folder, const std::string& name) {
    const Descriptor made(::openat(folder.get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    const bool is_file = made && ::fstat(made.get(), &status) == 0 && S_ISREG(status.st_mode);
    if (!is_file) return sync_all(folder);
    return ::fsync(made.get()) == 0 ? 0 : errno;
}

class Disk final : public FileSystem {
public:
    std::shared_ptr<volume::Volume> volume() const override { return nullptr; }
    std::string_view name_of(std::string_view path) const override { return core::name_of(path); }
    std::string full_path(const std::string& path) const override { return path; }
    std::optional<std::string> own_path(const std::string& full_path) const override { return full_path; }
    std::string plain_path(const std::string& path) const override { return absolute_path(path); }
    std::string path_on_disk(const std::string& path) const override { return path; }

    int look(const std::string& path, Links links, struct stat& status) const override {
        return look_at(path, links, status);
    }
    int list(const std::string& path, std::vector<std::string>& names, struct stat& folder) const override {
        const Place place(path);
        if (place.error() != 0) return place.error();
        const Descriptor opened(::openat(place.folder(), place.name(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!opened || ::fstat(opened.get(), &folder) != 0) return errno;
        return read_names(opened, names);
    }
    int read_link(const std::string& path, std::string& target) const override {
        return core::read_link(Place(path), target);
    }
    int follow_links(std::string& path) const override { return core::follow_links(path); }
    bool allows(const std::string& path, int what) const override {
        return at(path, [&](int folder, const char* name) { return ::faccessat(folder, name, what, AT_EACCESS); }) == 0;
    }
    int creation_time(const std::string& path, Links links, timespec& time) const override {
        return core::creation_time(Place(path), links, time);
    }

    int set_mode(const std::string& path, Links links, mode_t mode) const override {
        return at(path, [&](int folder, const char* name) { return ::fchmodat(folder, name, mode, flags_for(links)); });
    }
    int set_owner(const std::string& path, Links links, uid_t owner, gid_t group) const override {
        return at(path, [&](int folder, const char* name) {
            return ::fchownat(folder, name, owner, group, flags_for(links));
        });
    }
    int set_modification_time(const std::string& path, Links links, const timespec& time) const override {
        return core::set_modification_time(Place(path), links, time);
    }

    int make_file(const std::string& path, mode_t mode) const override {
        constexpr int kNew = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
        return at(path, [&](int folder, const char* name) {
            return Descriptor(::openat(folder, name, kNew, mode)) ? 0 : -1;
        });
    }
    int make_folder(const std::string& path, mode_t mode) const override {
        return at(path, [&](int folder, const char* name) { return ::mkdirat(folder, name, mode); });
    }
    int make_link(const std::string& path, const std::string& target) const override {
        return at(path, [&](int folder, const char* name) { return ::symlinkat(target.c_str(), folder, name); });
    }
    int rename(const std::string& path, const std::string& name) const override {
        const Place place(path);
        if (place.error() != 0 || name == place.name()) return place.error();
        return rename_in_place(place.folder(), place.name(), place.folder(), name.c_str());
    }
    Outcome move(const std::string& from, const std::string& to) const override { return move_tree(from, to); }

    int remove(const std::string& path) const override { return remove_entry(Place(path)); }
    int remove_all(const std::string& path, bool& touched) const override {
        return remove_at_once(Place(path), touched);
    }

    OpenedStore open(const std::string& path, Opening opening) const override {
        OpenedFile opened = open_file(path, opening);
        if (opened.file) return {.store = std::make_unique<FileStore>(std::move(*opened.file))};
        // A file that is no file has no number of the system's own; this one comes closest.
        return {.store = nullptr, .error = opened.error == 0 ? EINVAL : opened.error, .reason = opened.reason};
    }
    Outcome make_whole(const std::string& path,
                       const std::function<Outcome(const std::string& path)>& make) const override {
        return make_and_rename(Place(path), [&](const Descriptor& folder, const std::string& name) {
            const Outcome outcome = make(join(folder_of(path), name));
            return outcome.error != 0 ? outcome : Outcome{sync(folder, name), {}};
        });
    }
};

}  // namespace

const FileSystemPointer& disk() {
    static const auto* const only = new FileSystemPointer(std::make_shared<Disk>());
    return *only;
}

}  // namespace tavrik::core
