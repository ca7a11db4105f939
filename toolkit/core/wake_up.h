#pragma once

#include "toolkit/core/scheduler.h"

#include <array>

namespace tavrik::core {

// The one wake-up that a front gives, shared by all that want to be woken at some time.
class WakeUp {
public:
    enum Sleeper { kThreads, kPolls, kEventLoop, kSleepers };

    // Time::min() is at once, Time::max() not at all. Takes the place of what this sleeper wanted before.
    void at(Sleeper sleeper, Time time);
    // A front that is new hasn't been told yet.
    void tell_new_front();
    // The front says that it is time.
    void woken();

private:
    void tell_front();
    bool is_due(Sleeper sleeper);

    std::array<Time, kSleepers> wanted_{Time::max(), Time::max(), Time::max()};
    Time told_ = Time::max();
};

WakeUp& wake_up();

}  // namespace tavrik::core
