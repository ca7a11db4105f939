#pragma once

#include <string>
#include <string_view>

namespace tavrik::core {

// "valley.map could not be opened for writing: Permission denied". The one place where such sentences are made.
std::string describe_failure(std::string_view path, std::string_view not_done, int system_error);
std::string describe_failure(std::string_view path, std::string_view not_done, std::string_view reason);

// A file's name as text: bytes that aren't UTF-8 and control characters become visible escapes.
std::string readable(std::string_view name);

}  // namespace tavrik::core
