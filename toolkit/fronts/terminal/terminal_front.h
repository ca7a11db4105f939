#pragma once

#include "toolkit/front/front.h"

#include <unistd.h>

#include <memory>

namespace tavrik::front::terminal {

// A front that prints what is in front as text and reads lines. The descriptors stay the caller's, and open for as
// long as the front lives. Throws std::system_error if the system has no descriptor left for it.
std::unique_ptr<Front> make_terminal_front(const Start& start, int input = STDIN_FILENO, int output = STDOUT_FILENO);

}  // namespace tavrik::front::terminal
