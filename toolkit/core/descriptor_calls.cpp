#include "toolkit/core/descriptor_calls.h"

#include <poll.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

namespace tavrik::core {
namespace {

// Holds back the signals that writing sends with an error, and drops the one that this writing has caused.
class HeldSignals {
public:
    HeldSignals() {
        ::sigemptyset(&held_);
        ::sigaddset(&held_, SIGPIPE);
        ::sigaddset(&held_, SIGXFSZ);
        ::pthread_sigmask(SIG_BLOCK, &held_, &before_);
    }
    ~HeldSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

    void drop(int signal) const {
        if (::sigismember(&before_, signal) == 1) return;
        sigset_t pending;
        ::sigpending(&pending);
        if (::sigismember(&pending, signal) != 1) return;
        sigset_t only;
        ::sigemptyset(&only);
        ::sigaddset(&only, signal);
        ::sigwait(&only, &signal);
    }

private:
    sigset_t held_{};
    sigset_t before_{};
};

// A descriptor that never waits is waited for.
bool wait_for(int descriptor, short events) {
    if (errno != EAGAIN && errno != EWOULDBLOCK) return false;
    pollfd waiting{descriptor, events, 0};
    return retried([&] { return ::poll(&waiting, 1, -1); }) > 0;
}

template <class Call>
std::size_t read_by(int descriptor, Call call, int& error) {
    error = 0;
    ssize_t count = retried(call);
    while (count < 0 && wait_for(descriptor, POLLIN)) count = retried(call);
    if (count < 0) error = errno;
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}

// `call` writes from a place in `bytes` on.
template <class Call>
int write_by(int descriptor, std::string_view bytes, Call call) {
    const HeldSignals signals;
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = retried([&] { return call(bytes.substr(done), done); });
        if (count < 0 && wait_for(descriptor, POLLOUT)) continue;
        if (count < 0) {
            const int error = errno;
            if (error == EPIPE) signals.drop(SIGPIPE);
            if (error == EFBIG) signals.drop(SIGXFSZ);
            return error;
        }
        if (count == 0) return EIO;
        done += static_cast<std::size_t>(count);
    }
    return 0;
}

}  // namespace

std::size_t read_at(int descriptor, std::uint64_t position, std::span<char> bytes, int& error) {
    error = 0;
    if (position >= kFarthestByte) return 0;
    const std::size_t wanted = std::min<std::uint64_t>(bytes.size(), kFarthestByte - position);
    return read_by(
        descriptor, [&] { return ::pread(descriptor, bytes.data(), wanted, static_cast<off_t>(position)); }, error);
}

std::size_t read_next(int descriptor, std::span<char> bytes, int& error) {
    return read_by(
        descriptor, [&] { return ::read(descriptor, bytes.data(), bytes.size()); }, error);
}

int write_at(int descriptor, std::uint64_t position, std::string_view bytes) {
    if (bytes.size() > kFarthestByte || position > kFarthestByte - bytes.size()) return EFBIG;
    return write_by(descriptor, bytes, [&](std::string_view rest, std::size_t done) {
        return ::pwrite(descriptor, rest.data(), rest.size(), static_cast<off_t>(position + done));
    });
}

int write_next(int descriptor, std::string_view bytes) {
    return write_by(descriptor, bytes,
                    [&](std::string_view rest, std::size_t) { return ::write(descriptor, rest.data(), rest.size()); });
}

std::uint64_t length_of(int descriptor, int& error) {
    struct stat status {};
    error = ::fstat(descriptor, &status) == 0 ? 0 : errno;
    return error == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

int set_length_of(int descriptor, std::uint64_t length) {
    if (length > kFarthestByte) return EFBIG;
    const HeldSignals signals;
    if (retried([&] { return ::ftruncate(descriptor, static_cast<off_t>(length)); }) == 0) return 0;
    const int error = errno;
    if (error == EFBIG) signals.drop(SIGXFSZ);
    return error;
}

int close_descriptor(int descriptor) { return ::close(descriptor) == 0 || errno == EINTR ? 0 : errno; }

}  // namespace tavrik::core
