#pragma once

#include "toolkit/core/file_tree.h"

#include <string>
#include <vector>

namespace tavrik::core {

// One copying of a file, a link or a folder under a name that nothing has. However deep the folders lie, it takes two
// open ones: on its way back up it checks that each is the one that it came from.
class TreeCopy {
public:
    static Outcome run(int from_folder, const std::string& from, int to_folder, const std::string& to);

private:
    struct Level {
        std::string name;  // as the source has it
        struct stat source;
        struct stat target;
        std::vector<std::string> names;
        std::size_t next = 0;
    };

    TreeCopy(int from_folder, int to_folder);

    int copy_entry(const std::string& from, const std::string& to);
    int copy_file(const std::string& from, const std::string& to);
    int copy_link(const std::string& from, const std::string& to, const struct stat& status);
    int enter(const std::string& from, const std::string& to);
    int leave();
    int copy_all(const std::string& from, const std::string& to);

    Descriptor outer_from_;
    Descriptor outer_to_;
    Descriptor from_;
    Descriptor to_;
    std::vector<Level> levels_;
    std::string reason_;
};

// Opens the folder around an open one, if it is the one that is expected.
Descriptor open_outer(const Descriptor& folder, const struct stat& expected, int& error);

}  // namespace tavrik::core
