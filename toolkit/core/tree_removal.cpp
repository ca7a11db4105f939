#include "toolkit/core/file_tree.h"
#include "toolkit/core/tree_copy.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>
#include <vector>

namespace tavrik::core {
namespace {

constexpr int kFolder = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

struct Level {
    std::string name;
    struct stat status;
    std::vector<std::string> names;
};

// Two open folders at most, as for a copy.
class TreeRemoval {
public:
    explicit TreeRemoval(const Descriptor& folder) : outer_(::openat(folder.get(), ".", kFolder)) {}

    int run(const std::string& name) {
        if (!outer_) return errno;
        int error = remove(outer_, name);
        while (error == 0 && !levels_.empty()) {
            Level& level = levels_.back();
            if (level.names.empty()) {
                error = leave();
                continue;
            }
            const std::string next = std::move(level.names.back());
            level.names.pop_back();
            error = remove(here_, next);
        }
        return error;
    }

private:
    // What is a folder is entered, and removed on the way back.
    int remove(const Descriptor& folder, const std::string& name) {
        if (::unlinkat(folder.get(), name.c_str(), 0) == 0) return 0;
        const int refused = errno;
        if (refused != EISDIR && refused != EPERM) return refused;
        Level level{.name = name, .status = {}, .names = {}};
        Descriptor entered(::openat(folder.get(), name.c_str(), kFolder));
        if (!entered) return errno == ENOTDIR ? refused : errno;
        if (::fstat(entered.get(), &level.status) != 0) return errno;
        if (const int error = read_names(entered, level.names)) return error;
        here_ = std::move(entered);
        levels_.push_back(std::move(level));
        return 0;
    }

    int leave() {
        const Level left = std::move(levels_.back());
        levels_.pop_back();
        int error = 0;
        if (!levels_.empty()) here_ = open_outer(here_, levels_.back().status, error);
        if (error != 0) return error;
        const Descriptor& outer = levels_.empty() ? outer_ : here_;
        return ::unlinkat(outer.get(), left.name.c_str(), AT_REMOVEDIR) == 0 ? 0 : errno;
    }

    Descriptor outer_;
    Descriptor here_;
    std::vector<Level> levels_;
};

}  // namespace

int remove_tree(const Descriptor& folder, const std::string& name) { return TreeRemoval(folder).run(name); }

}  // namespace tavrik::core
