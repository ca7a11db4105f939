#pragma once

#include <span>
#include <string>
#include <vector>

// What the system knows of this process's program.
namespace tavrik::core {

// The absolute path of the program's file, as bytes; empty if the system doesn't tell.
std::string executable_path();

// What the process was started with, without the program's own name.
std::vector<std::string> program_arguments();

// The absolute paths of the files among them: each a path or a file:// address of a file that is there.
std::vector<std::string> documents_among(std::span<const std::string> arguments);

}  // namespace tavrik::core
