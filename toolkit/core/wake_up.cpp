#include "toolkit/core/wake_up.h"

#include "toolkit/core/polls.h"
#include "toolkit/core/program.h"

#include <algorithm>

namespace tavrik::core {

using std::chrono::milliseconds;

void WakeUp::at(Sleeper sleeper, Time time) {
    wanted_[sleeper] = time;
    if (has_front()) on_main_stack([this] { tell_front(); });
}

void WakeUp::tell_new_front() {
    told_ = Time::max();
    if (has_front()) tell_front();
}

void WakeUp::tell_front() {
    const Time wanted = *std::ranges::min_element(wanted_);
    if (wanted >= told_) return;
    told_ = wanted;
    const auto delay = wanted == Time::min() ? Time::duration::zero() : wanted - scheduler().now();
    front().wake_in(std::max(std::chrono::ceil<milliseconds>(delay), milliseconds::zero()));
}

// A wish is for one time.
bool WakeUp::is_due(Sleeper sleeper) {
    if (wanted_[sleeper] > scheduler().now()) return false;
    wanted_[sleeper] = Time::max();
    return true;
}

void WakeUp::woken() {
    told_ = Time::max();
    is_due(kEventLoop);  // it goes on by itself
    if (is_due(kPolls)) polls().run();
    if (is_due(kThreads)) scheduler().run_threads();
    if (has_front()) tell_front();
}

WakeUp& wake_up() {
    static auto* const the_wake_up = new WakeUp;  // outlives whatever might still be released at the end
    return *the_wake_up;
}

}  // namespace tavrik::core
