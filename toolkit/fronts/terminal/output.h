#pragma once

#include <signal.h>

#include <string_view>

namespace tavrik::front::terminal {

// Writes the whole text, however long the reader takes. False: nobody can read it any more.
bool write_all(int descriptor, std::string_view text);

// While it lives, a write that nobody can read fails, and doesn't end the program.
class IgnoreBrokenPipe {
public:
    IgnoreBrokenPipe();
    IgnoreBrokenPipe(const IgnoreBrokenPipe&) = delete;
    IgnoreBrokenPipe& operator=(const IgnoreBrokenPipe&) = delete;
    ~IgnoreBrokenPipe();

private:
    struct sigaction before_ {};
};

}  // namespace tavrik::front::terminal
