#pragma once

#include <sys/stat.h>

// One open file or folder into another. Errors are the system's numbers, 0 for none.
namespace tavrik::core {

// All bytes; holes stay holes.
int copy_contents(int from, int to);
// Owner and group as far as the program may, attributes, permissions and times: `source` is what is known of `from`.
int copy_metadata(int from, int to, const struct stat& source);

}  // namespace tavrik::core
