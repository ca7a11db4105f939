// A volume, as one of the things that items lie in.
#include "toolkit/core/file_system.h"
#include "toolkit/core/file_times.h"
#include "toolkit/core/path.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/volume_store.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace tavrik::core {
namespace {

using volume::Entry;
using volume::Kind;
using volume::Volume;

constexpr int kMostLinks = 40;
constexpr mode_t kFileMode = 0644;
constexpr mode_t kAnyExecute = 0111;
constexpr mode_t kOwnerWrite = 0200;
constexpr mode_t kOthersWrite = 0022;

mode_t type_of(Kind kind) {
    if (kind == Kind::kFolder) return S_IFDIR;
    return kind == Kind::kLink ? S_IFLNK : S_IFREG;
}

// Within the volume: the root is the empty path there.
std::string_view inside(std::string_view path) {
    if (path.starts_with('/')) path.remove_prefix(1);
    return path;
}

std::string take_first_name(std::string& path) {
    const std::size_t end = std::min(path.find('/'), path.size());
    std::string name = path.substr(0, end);
    path.erase(0, end + 1);
    return name;
}

class VolumeFiles final : public FileSystem {
public:
    explicit VolumeFiles(std::shared_ptr<Volume> volume) : volume_(std::move(volume)) {
        // Everything in the volume belongs to the owner of its file.
        look_at(volume_->path(), Links::kFollow, file_);
    }

    std::shared_ptr<Volume> volume() const override { return volume_; }
    std::string_view name_of(std::string_view path) const override {
        return core::name_of(path == "/" ? std::string_view(volume_->path()) : path);
    }
    std::string full_path(const std::string& path) const override { return volume_->path() + path; }
    std::optional<std::string> own_path(const std::string& full_path) const override {
        const std::string& front = volume_->path();
        if (!full_path.starts_with(front + '/')) return {};
        return full_path.substr(front.size());
    }
    std::string plain_path(const std::string& path) const override {
        std::string plain;
        const int error = on_main_stack([&] { return resolve_steps(path, Links::kItself, plain); });
        return error == 0 ? '/' + plain : path;
    }
    std::string path_on_disk(const std::string&) const override { return volume_->path(); }

    int look(const std::string& path, Links links, struct stat& status) const override {
        return with(path, links, [&](std::string_view found) {
            Entry entry;
            if (const int error = volume_->stat(found, entry)) return error;
            status = file_;
            status.st_ino = 0;
            status.st_mode = type_of(entry.kind) | entry.mode;
            status.st_size = static_cast<off_t>(entry.size);
            modification_time(status) = {static_cast<time_t>(entry.modified), 0};
            // When an entry was changed last isn't kept: it may have been just now.
            ::clock_gettime(CLOCK_REALTIME, &change_time(status));
            return 0;
        });
    }
    int list(const std::string& path, std::vector<std::string>& names, struct stat& folder) const override {
        if (const int error = look(path, Links::kFollow, folder)) return error;
        return with(path, Links::kFollow, [&](std::string_view found) {
            std::vector<Entry> entries;
            const int error = volume_->list(found, entries);
            for (Entry& entry : entries) names.push_back(std::move(entry.name));
            return error;
        });
    }
    int read_link(const std::string& path, std::string& target) const override {
        return with(path, Links::kItself, [&](std::string_view found) { return volume_->read_link(found, target); });
    }
    int follow_links(std::string& path) const override {
        return with(path, Links::kFollow, [&](std::string_view found) {
            path = '/' + std::string(found);
            return 0;
        });
    }
    bool allows(const std::string& path, int what) const override {
        struct stat status {};
        if (look(path, Links::kFollow, status) != 0) return false;
        if ((what & X_OK) != 0 && (status.st_mode & kAnyExecute) == 0) return false;
        return (what & W_OK) == 0 || (volume_->writable() && (status.st_mode & kOwnerWrite) != 0);
    }
    int creation_time(const std::string& path, Links links, timespec& time) const override {
        struct stat status {};
        const int error = look(path, links, status);
        time = modification_time(status);
        return error;
    }

    int set_mode(const std::string& path, Links links, mode_t mode) const override {
        return with(path, links, [&](std::string_view found) { return volume_->set_mode(found, mode); });
    }
    int set_owner(const std::string&, Links, uid_t, gid_t) const override { return ENOTSUP; }
    int set_modification_time(const std::string& path, Links links, const timespec& time) const override {
        return with(path, links, [&](std::string_view found) { return volume_->set_modified(found, time.tv_sec); });
    }

    int make_file(const std::string& path, mode_t mode) const override {
        return with(path, Links::kItself, [&](std::string_view found) { return volume_->create_file(found, mode); });
    }
    int make_folder(const std::string& path, mode_t mode) const override {
        return with(path, Links::kItself,
                    [&](std::string_view found) { return volume_->create_folder(found, mode & ~kOthersWrite); });
    }
    int make_link(const std::string& path, const std::string& target) const override {
        return with(path, Links::kItself, [&](std::string_view found) { return volume_->create_link(found, target); });
    }
    int rename(const std::string& path, const std::string& name) const override {
        if (path == "/") return EBUSY;
        return move(path, join(folder_of(path), name)).error;
    }
    Outcome move(const std::string& from, const std::string& to) const override {
        const int error = with(from, Links::kItself, [&](const std::string& source) {
            return with(to, Links::kItself, [&](const std::string& target) { return volume_->move(source, target); });
        });
        return {error, {}};
    }

    int remove(const std::string& path) const override {
        return with(path, Links::kItself, [&](std::string_view found) { return volume_->remove(found); });
    }
    int remove_all(const std::string& path, bool& touched) const override {
        touched = false;
        return with(path, Links::kItself, [&](const std::string& found) {
            return volume_->change_at_once([&] { return remove_tree(found); });
        });
    }

    OpenedStore open(const std::string& path, Opening opening) const override {
        OpenedStore opened;
        opened.error = with(path, Links::kFollow, [&](const std::string& found) {
            Entry entry;
            int error = volume_->stat(found, entry);
            if (error == 0 && entry.kind == Kind::kFolder) {
                opened.reason = "it is a folder";
                return EINVAL;
            }
            const bool creates = opening == Opening::kCreate || opening == Opening::kAppend;
            if (error == ENOENT && creates) error = volume_->create_file(found, kFileMode);
            if (error != 0) return error;
            const auto access = opening == Opening::kRead ? volume::Access::kRead : volume::Access::kWrite;
            std::unique_ptr<volume::File> file = volume_->open(found, access, error);
            if (error == 0 && opening == Opening::kCreate) error = file->set_length(0);
            if (error == 0) opened.store = std::make_unique<VolumeStore>(full_path(path), std::move(file), opening);
            return error;
        });
        return opened;
    }
    Outcome make_whole(const std::string& path,
                       const std::function<Outcome(const std::string& path)>& make) const override {
        Outcome outcome;
        const int error = on_main_stack([&] {
            return volume_->change_at_once([&] {
                outcome = make(path);
                return outcome.error;
            });
        });
        if (outcome.error == 0) outcome.error = error;
        return outcome;
    }

private:
    // Calls with the path within the volume behind all links.
    template <class Call>
    int with(const std::string& path, Links links, Call call) const {
        return on_main_stack([&] {
            std::string found;
            const int error = resolve(path, links, found);
            return error != 0 ? error : call(found);
        });
    }

    // Links lead to what is in the same volume, also those that begin with "/".
    int resolve(const std::string& path, Links links, std::string& found) const {
        if (path.empty()) return ENOENT;
        found = inside(path);
        Entry entry;
        const int error = volume_->stat(found, entry);
        const bool is_there = error == 0 && (entry.kind != Kind::kLink || links == Links::kItself);
        if (is_there || (error != 0 && error != ENOTDIR)) return 0;
        return resolve_steps(path, links, found);
    }

    int resolve_steps(const std::string& path, Links links, std::string& found) const {
        found.clear();
        std::string rest(inside(path));
        Entry entry;
        for (int links_left = kMostLinks; !rest.empty();) {
            const std::string name = take_first_name(rest);
            if (name.empty() || name == ".") continue;
            if (name == "..") {
                found.resize(found.find('/') == std::string::npos ? 0 : found.rfind('/'));
                continue;
            }
            std::string next = join(found, name);
            const bool is_link = volume_->stat(next, entry) == 0 && entry.kind == Kind::kLink;
            if (!is_link || (rest.empty() && links == Links::kItself)) {
                found = std::move(next);
                continue;
            }
            std::string target;
            if (const int failed = volume_->read_link(next, target)) return failed;
            if (links_left-- == 0) return ELOOP;
            if (target.starts_with('/')) found.clear();
            rest = rest.empty() ? std::move(target) : join(target, rest);
        }
        return 0;
    }

    int remove_tree(const std::string& path) const {
        std::vector<Entry> entries;
        const int error = volume_->list(path, entries);
        if (error != 0 && error != ENOTDIR) return error;
        for (const Entry& entry : entries) {
            if (const int failed = remove_tree(join(path, entry.name))) return failed;
        }
        return volume_->remove(path);
    }

    std::shared_ptr<Volume> volume_;
    struct stat file_ {};
};

}  // namespace

FileSystemPointer file_system_of(std::shared_ptr<Volume> volume) {
    return std::make_shared<VolumeFiles>(std::move(volume));
}

}  // namespace tavrik::core
