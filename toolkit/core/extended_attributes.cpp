#include "toolkit/core/extended_attributes.h"

#include <sys/types.h>
#include <sys/xattr.h>

#include <cerrno>
#include <cstddef>
#include <string_view>

namespace tavrik::core {
namespace {

#ifdef __APPLE__
ssize_t list_names(int file, char* names, std::size_t size) { return ::flistxattr(file, names, size, 0); }
ssize_t get_value(int file, const char* name, char* value, std::size_t size) {
    return ::fgetxattr(file, name, value, size, 0, 0);
}
int set_value(int file, const char* name, const char* value, std::size_t size) {
    return ::fsetxattr(file, name, value, size, 0, 0);
}
constexpr int kNoAttribute = ENOATTR;
#else
ssize_t list_names(int file, char* names, std::size_t size) { return ::flistxattr(file, names, size); }
ssize_t get_value(int file, const char* name, char* value, std::size_t size) {
    return ::fgetxattr(file, name, value, size);
}
int set_value(int file, const char* name, const char* value, std::size_t size) {
    return ::fsetxattr(file, name, value, size, 0);
}
constexpr int kNoAttribute = ENODATA;
#endif

// Asks for the size, and then for the bytes; again while they grow in between.
template <class Get>
int fetch(Get get, std::string& bytes) {
    while (true) {
        const ssize_t size = get(nullptr, std::size_t{0});
        if (size < 0) return errno;
        bytes.resize(static_cast<std::size_t>(size));
        if (size == 0) return 0;
        const ssize_t got = get(bytes.data(), bytes.size());
        if (got >= 0) {
            bytes.resize(static_cast<std::size_t>(got));
            return 0;
        }
        if (errno != ERANGE) return errno;
    }
}

bool may_stay_behind(int error) {
    return is_without_attributes(error) || is_no_attribute(error) || error == EACCES || error == EINVAL ||
           error == E2BIG || error == ENOSPC;
}

}  // namespace

bool is_no_attribute(int error) { return error == kNoAttribute; }
bool is_without_attributes(int error) { return error == ENOTSUP || error == EPERM || error == ENOSYS; }

int read_attribute(int file, const char* name, std::string& value) {
    return fetch([&](char* bytes, std::size_t size) { return get_value(file, name, bytes, size); }, value);
}

int write_attribute(int file, const char* name, const std::string& value) {
    return set_value(file, name, value.data(), value.size()) == 0 ? 0 : errno;
}

int copy_attributes(int from, int to) {
    std::string names;
    const int error = fetch([&](char* bytes, std::size_t size) { return list_names(from, bytes, size); }, names);
    if (error != 0) return may_stay_behind(error) ? 0 : error;
    std::string value;
    for (std::size_t at = 0; at < names.size(); at += std::string_view(&names[at]).size() + 1) {
        int failed = read_attribute(from, &names[at], value);
        if (failed == 0) failed = write_attribute(to, &names[at], value);
        if (failed != 0 && !may_stay_behind(failed)) return failed;
    }
    return 0;
}

}  // namespace tavrik::core
