#include "toolkit/core/event_scope.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/program.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/wake_up.h"

#include <tavrik/application.h>

namespace tavrik {
namespace core {
namespace {

using std::chrono::milliseconds;

// What a desktop keeps reporting doesn't keep the caller for ever.
constexpr milliseconds kLongestDispatch{20};

// Whether there was an event in a turn of the event loop.
bool one_turn(bool wait) {
    const std::uint32_t before = EventScope::total;
    front().pump(wait);
    return EventScope::total != before;
}

bool dispatch_all() {
    const Time end = scheduler().now() + kLongestDispatch;
    bool any = false;
    while (!has_quit() && one_turn(false)) {
        any = true;
        if (scheduler().now() >= end) break;
    }
    return any;
}

void do_events(milliseconds longest_wait) {
    if (dispatch_all()) return;
    const Time end = scheduler().now() + longest_wait;
    while (!has_quit() && scheduler().now() < end) {
        wake_up().at(WakeUp::kEventLoop, end);
        if (one_turn(true)) break;
    }
    wake_up().at(WakeUp::kEventLoop, Time::max());
}

}  // namespace
}  // namespace core

void RuntimeDoEvents(Object*, std::int32_t milliseconds) {
    core::need_main_thread();
    if (milliseconds < 0) return core::scheduler().yield();
    core::on_main_stack([milliseconds] { core::do_events(std::chrono::milliseconds(milliseconds)); });
}

void ApplicationDoSingleEvent(Object*, bool wait) {
    core::need_main_thread();
    core::on_main_stack([wait] {
        if (!core::has_quit()) core::front().pump(wait);
    });
}

}  // namespace tavrik
