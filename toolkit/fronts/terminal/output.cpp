#include "toolkit/fronts/terminal/output.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace tavrik::front::terminal {
namespace {

void wait_until_writable(int descriptor) {
    pollfd watched{descriptor, POLLOUT, 0};
    ::poll(&watched, 1, -1);
}

}  // namespace

bool write_all(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            wait_until_writable(descriptor);
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

IgnoreBrokenPipe::IgnoreBrokenPipe() {
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignore, &before_);
}

IgnoreBrokenPipe::~IgnoreBrokenPipe() { ::sigaction(SIGPIPE, &before_, nullptr); }

}  // namespace tavrik::front::terminal
