#pragma once

#include <string>

// The attributes that a file system keeps with an open file beside its own. Errors are the system's numbers.
namespace tavrik::core {

int read_attribute(int file, const char* name, std::string& value);
int write_attribute(int file, const char* name, const std::string& value);
// Takes over all that the other file system and the rights of this program allow.
int copy_attributes(int from, int to);

// Whether an error says that there is no such attribute, or no attributes at all.
bool is_no_attribute(int error);
bool is_without_attributes(int error);

}  // namespace tavrik::core
