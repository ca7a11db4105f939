#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Where things lie in the file system. Errors are the system's numbers, 0 for none.
namespace tavrik::core {

// Owns an open file or folder.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor();

    int get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

private:
    int number_ = -1;
};

// Whether a link stands for what it leads to.
enum class Links { kFollow, kItself };

// An open folder, and a name in it. What is done to that name happens in that very folder, whatever becomes of the path
// in the meantime. The path may be of any length.
class Place {
public:
    explicit Place(std::string_view path);

    // Why the folder could not be reached.
    int error() const { return error_; }
    int folder() const { return folder_.get(); }
    const char* name() const { return name_.c_str(); }

    int look(Links links, struct stat& status) const;

private:
    Descriptor folder_;
    std::string name_;
    int error_ = 0;
};

// A folder that is opened as a place for others: without a right to list it.
Descriptor open_folder(std::string_view path, int& error);
int look_at(const std::string& path, Links links, struct stat& status);

// The target of the link at a place; an error also for what is no link.
int read_link(const Place& place, std::string& target);
// Follows the links at the end of the path, and none in front; a link that leads nowhere gives the path that isn't
// there.
int follow_links(std::string& path);
// The absolute path without "..", as the file system takes it.
std::string absolute_path(std::string_view path);

// All names in an open folder but "." and "..".
int read_names(const Descriptor& folder, std::vector<std::string>& names);

inline bool is_same_file(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace tavrik::core
