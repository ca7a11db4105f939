#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tavrik::core {

// What is known of the event that is being handled. Events nest where a dialog is open inside a handler. Outside of
// any event, at start-up, the program itself takes the notes.
class EventScope {
public:
    EventScope();
    ~EventScope();
    EventScope(const EventScope&) = delete;
    EventScope& operator=(const EventScope&) = delete;

    // Why a service call failed, in words for the person: the operation, on what, and the system's reason.
    static void note_failure(std::string reason);
    // The last of them in this event, or nothing.
    static std::string_view last_failure();
    // The person cancelled a dialog, and so knows why nothing happened.
    static void note_cancel();
    static bool cancelled();

    static bool inside_event();
    // When it began, in 60ths of a second since the system started; now outside of any event. Begins again at the
    // lowest number after some 400 days.
    static std::int32_t ticks();
    // How many events there have been on the main stack, those aside that only asked whether there is something to do.
    static std::uint32_t total;

    // Each thread has events of its own: a switch of threads goes on in those of the other one.
    static EventScope* innermost() { return innermost_; }
    static void go_on_in(EventScope* innermost) { innermost_ = innermost; }

private:
    struct Notes {
        std::string failure;
        bool cancelled = false;
    };
    static Notes& current();

    static EventScope* innermost_;

    EventScope* outer_;
    std::int32_t ticks_;
    Notes notes_;
};

// Runs code that a front, a thread or a C callback enters the program with, as one event. Nothing leaves it: an
// exception goes to the application's "UnhandledException" event and, if no handler takes it, to
// RuntimeUnhandledException. At its end everything buffered is in the files, and what went wrong unread is told.
void deliver(const std::function<void()>& event, const char* call = __builtin_FUNCTION()) noexcept;

}  // namespace tavrik::core
