#include "toolkit/fronts/terminal/posted_calls.h"

#include <fcntl.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace tavrik::front::terminal {

PostedCalls::PostedCalls() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0) {
        throw std::system_error(errno, std::generic_category(), "Making the pipe that wakes the main thread");
    }
    read_end_ = Descriptor(ends[0]);
    write_end_ = Descriptor(ends[1]);
    for (const int end : ends) ::fcntl(end, F_SETFD, FD_CLOEXEC);
}

// The pipe holds one byte while there are calls and none while there are none, so neither end ever blocks.
void PostedCalls::post(std::function<void()> call) {
    const std::lock_guard lock(mutex_);
    calls_.push_back(std::move(call));
    if (calls_.size() > 1) return;
    const char wake = 0;
    while (::write(write_end_.number(), &wake, 1) < 0 && errno == EINTR) continue;
}

bool PostedCalls::run() {
    const std::size_t batch = count();
    for (std::size_t done = 0; done < batch; ++done) {
        // A call may run those behind it, by waiting for something itself.
        const auto call = take();
        if (!call) break;
        (*call)();
    }
    return batch > 0;
}

std::size_t PostedCalls::count() {
    const std::lock_guard lock(mutex_);
    return calls_.size();
}

std::optional<std::function<void()>> PostedCalls::take() {
    const std::lock_guard lock(mutex_);
    if (calls_.empty()) return std::nullopt;
    std::optional call = std::move(calls_.front());
    calls_.pop_front();
    if (!calls_.empty()) return call;
    char wake = 0;
    while (::read(read_end_.number(), &wake, 1) < 0 && errno == EINTR) continue;
    return call;
}

}  // namespace tavrik::front::terminal
