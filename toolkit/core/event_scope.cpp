#include "toolkit/core/event_scope.h"

#include "toolkit/core/control.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/streams.h"
#include "toolkit/core/window.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <ctime>
#include <exception>

namespace tavrik::core {
namespace {

constinit Event<bool(Object*)> unhandled_exception{"Application", "UnhandledException"};

bool is(Object* object, std::string_view class_name) { return RuntimeObjectIsa(object, RuntimeFindClass(class_name)); }

bool application_takes(Object* exception) {
    const Ref<Object> app = getAppObject();
    return app && unhandled_exception(app.object(), exception);
}

void hand_on(Object* exception) {
    if (is(exception, "EndException")) {
        quit();
        return;
    }
    if (is_end_of_thread(exception)) return;
    if (is(exception, "NilObjectException") && EventScope::cancelled()) return;
    if (!application_takes(exception)) RuntimeUnhandledException(exception);
}

// One step of an event: what it raises is handed on, and what that raises in turn is told.
void guarded(const std::function<void()>& step) noexcept {
    Ref<Object> caught;
    try {
        step();
        return;
    } catch (const RaisedException& raised) {
        caught = raised.exception;
    } catch (const std::exception& error) {
        return tell_failure(error.what());
    }
    try {
        hand_on(caught.object());
    } catch (const RaisedException& raised) {
        RuntimeUnhandledException(raised.exception.object());
    } catch (const std::exception& error) {
        tell_failure(error.what());
    }
}

std::int32_t ticks_now() {
#if defined(CLOCK_BOOTTIME)
    constexpr clockid_t kSinceStart = CLOCK_BOOTTIME;
#else
    constexpr clockid_t kSinceStart = CLOCK_MONOTONIC;
#endif
    timespec time{};
    ::clock_gettime(kSinceStart, &time);
    return static_cast<std::int32_t>(time.tv_sec * 60 + time.tv_nsec * 60 / 1'000'000'000);
}

void raise_what_releases_left() {
    if (runtime_release_exception != nullptr) RuntimeReraiseException(RuntimeTakeReleaseException().object());
}

}  // namespace

EventScope* EventScope::innermost_ = nullptr;
std::uint32_t EventScope::total = 0;

EventScope::EventScope() : outer_(std::exchange(innermost_, this)), ticks_(ticks_now()) {}

EventScope::~EventScope() { innermost_ = outer_; }

EventScope::Notes& EventScope::current() {
    static auto* const outside = new Notes;  // outlives whatever might take a note at the end of the process
    return innermost_ == nullptr ? *outside : innermost_->notes_;
}

void EventScope::note_failure(std::string reason) { current().failure = std::move(reason); }

std::string_view EventScope::last_failure() { return current().failure; }

void EventScope::note_cancel() { current().cancelled = true; }

bool EventScope::cancelled() { return current().cancelled; }

bool EventScope::inside_event() { return innermost_ != nullptr; }

std::int32_t EventScope::ticks() { return innermost_ == nullptr ? ticks_now() : innermost_->ticks_; }

void deliver(const std::function<void()>& event, const char* call) noexcept {
    need_main_thread(call);
    const EventScope scope;
    if (scheduler().current() == nullptr) ++EventScope::total;
    guarded(event);
    guarded(look_at_controls);
    guarded(update_dirty_windows);
    guarded(raise_what_releases_left);
    guarded(flush_all_streams);
    guarded(apply_waiting_menus);
    for (const std::string& failure : take_unread_stream_failures()) tell_failure(failure);
}

}  // namespace tavrik::core
