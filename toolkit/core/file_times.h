#pragma once

#include <sys/stat.h>
#include <time.h>

namespace tavrik::core {

#ifdef __APPLE__
inline timespec access_time(const struct stat& status) { return status.st_atimespec; }
inline timespec modification_time(const struct stat& status) { return status.st_mtimespec; }
inline timespec change_time(const struct stat& status) { return status.st_ctimespec; }
inline timespec& modification_time(struct stat& status) { return status.st_mtimespec; }
inline timespec& change_time(struct stat& status) { return status.st_ctimespec; }
#else
inline timespec access_time(const struct stat& status) { return status.st_atim; }
inline timespec modification_time(const struct stat& status) { return status.st_mtim; }
inline timespec change_time(const struct stat& status) { return status.st_ctim; }
inline timespec& modification_time(struct stat& status) { return status.st_mtim; }
inline timespec& change_time(struct stat& status) { return status.st_ctim; }
#endif

}  // namespace tavrik::core
