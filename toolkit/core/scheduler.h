#pragma once

#include "toolkit/core/fiber.h"
#include "toolkit/core/ready_queue.h"

#include <tavrik/object.h>
#include <tavrik/thread.h>

#include <chrono>
#include <exception>
#include <functional>
#include <list>
#include <map>
#include <optional>
#include <utility>

namespace tavrik::core {

using Time = std::chrono::steady_clock::time_point;

// Where the scheduler has the time from.
class Clock {
public:
    virtual ~Clock() = default;
    virtual Time now() = 0;
    virtual void wait_until(Time time) = 0;
};

// What a thread does, and whom to tell that it is over. `owner` is held until then.
class ThreadCode {
public:
    virtual void run() = 0;
    virtual void ended() = 0;

protected:
    ~ThreadCode() = default;
};

// One run of a thread, from its start to its end.
class Task : public Turns {
public:
    struct Start {
        ThreadCode& code;
        Ref<Object> owner;
        std::int32_t priority;
        std::size_t stack_bytes;
    };
    Task(std::int32_t number, Start start, void (*entry)());

    ThreadState state() const;
    // The thread's object, while its code runs.
    Object* owner() const { return owner_.object(); }

private:
    friend class Scheduler;

    bool can_go_on() const;
    bool is_to_end_now() const;

    std::int32_t number_;
    ThreadCode& code_;
    Ref<Object> owner_;
    Fiber fiber_;
    std::list<Task>::iterator place_;
    const std::function<void()>* call_ = nullptr;  // on the main stack, which it waits for
    std::exception_ptr failure_;                   // what that call has thrown
    std::optional<Time> sleeps_until_;
    bool wakes_early_ = false;
    bool is_suspended_ = false;
    bool is_killed_ = false;
    bool is_killable_ = true;
};

// Gives the threads of the program their turns. All run on one thread of the system, each on a stack of its own; the
// main stack is the event loop's and of whatever it calls. It gets every second turn, unless it only waits for events.
class Scheduler {
public:
    Scheduler() { use_clock(nullptr); }

    Task& start(Task::Start start);
    // nullptr on the main stack.
    Task* current() const { return current_; }

    void suspend(Task& task);
    void resume(Task& task);
    // nullptr is the main stack, which nothing wakes early.
    void sleep(Task* task, std::chrono::milliseconds time, bool wakes_early);
    // Raises ThreadEndException at once in the current one, and in another one at its next turn.
    void kill(Task& task);
    void set_priority(Task& task, std::int32_t priority);

    // Ends the current turn.
    void yield();
    // The end of a pass: ends the turn if its time is over.
    void pass_ended();

    // From the event loop, and only there: lets threads run for one slice of time at most.
    void run_threads();
    Time now() const { return clock_->now(); }

    // Makes the call on the main stack, wherever the code runs that asks for it, which waits for the end.
    void call_on_main_stack(const std::function<void()>& function);

    // Kills all threads in the order of their start, and lets each unwind before the next.
    void end_all();

    // nullptr is the real clock.
    void use_clock(Clock* clock);

private:
    using Sleeper = std::pair<Time, std::int32_t>;  // the number keeps two apart that wake at once

    static void run_task();

    Fiber& fiber_of(Task* task) { return task == nullptr ? main_ : task->fiber_; }
    void switch_stacks(Task* next, Fiber::Leaving leaving = Fiber::Leaving::kForNow);
    void arrived();
    void switch_to(Task* next);
    void make_call_of(Task& caller);

    bool run_round(std::optional<std::chrono::milliseconds> window);
    Task* next_task();
    Task* take_task(Time time);
    void leave();
    // Has run_threads() called in time.
    void arrange_wake_up();

    void place(Task& task);
    void wake(Task& task);
    void wake_all_due();
    void sleep_on_main_stack(Time until);
    void count();
    void end(Task& task);

    Fiber main_;
    std::list<Task> tasks_;  // in the order of their start
    Task* current_ = nullptr;
    Task* finished_ = nullptr;  // its stack can be dropped once another one runs
    Task* caller_ = nullptr;    // has come to the main stack with a call to be made
    std::int32_t last_number_ = 0;

    ReadyQueue ready_;
    std::map<Sleeper, Task*> sleepers_;

    Clock* clock_;
    std::optional<Time> turn_ends_;     // unknown until it is asked for
    std::optional<Time> no_turn_from_;  // the main stack gets the turn after that time, or else the next one
    Time last_look_;
    int passes_to_look_ = 1;
    int passes_between_looks_ = 1;
};

Scheduler& scheduler();

// Whether it is the exception that quietly ends a thread, on its way through one.
bool is_end_of_thread(const Object* exception);

// Makes the call on the main stack. What a front does belongs there: its event loops nest, and its libraries want deep
// stacks.
template <class Call>
auto on_main_stack(Call call) -> decltype(call()) {
    if (scheduler().current() == nullptr) return call();
    if constexpr (std::is_void_v<decltype(call())>) {
        scheduler().call_on_main_stack(call);
    } else {
        std::optional<decltype(call())> result;
        scheduler().call_on_main_stack([&] { result.emplace(call()); });
        return std::move(*result);
    }
}

}  // namespace tavrik::core
