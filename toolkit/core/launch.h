#pragma once

#include <string>
#include <vector>

namespace tavrik::core {

// Starts a program, found on PATH unless its name is a path, and doesn't wait for it. It reads nothing of this
// program's input and adds nothing to its output. The system's number if it can't be started, 0 otherwise.
int start_program(const std::vector<std::string>& words);

// What opens files and folders on this desktop.
std::vector<std::string> desktop_opener(bool activate);

}  // namespace tavrik::core
