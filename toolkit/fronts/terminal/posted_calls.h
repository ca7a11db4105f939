#pragma once

#include "toolkit/fronts/terminal/descriptor.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>

namespace tavrik::front::terminal {

// The calls that any thread hands to the main thread, in order.
class PostedCalls {
public:
    // Throws std::system_error if there can be no pipe.
    PostedCalls();

    void post(std::function<void()> call);
    // Runs the calls that are there now; what these post in turn waits for the next time. Whether there were any.
    bool run();
    // Readable exactly while there are calls.
    int descriptor() const { return read_end_.number(); }

private:
    std::size_t count();
    std::optional<std::function<void()>> take();

    std::mutex mutex_;
    std::deque<std::function<void()>> calls_;
    Descriptor read_end_;
    Descriptor write_end_;
};

}  // namespace tavrik::front::terminal
