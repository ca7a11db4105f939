#include "toolkit/core/scheduler.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/wake_up.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <thread>

namespace tavrik {

constinit std::int32_t runtime_threads_under_way = 0;

namespace core {
namespace {

using std::chrono::milliseconds;

// Between two rounds of events turns begin for the one time and last for the other: 10 ms at most.
constexpr milliseconds kTurn{8};
constexpr milliseconds kTurnsBeginFor{2};

// The clock is looked at every so many passes: fewer if passes take long.
constexpr int kMostPassesBetweenLooks = 32;
constexpr std::chrono::microseconds kShortPasses{250};

// A thread that goes on after so many ThreadEndExceptions is given up.
constexpr int kMostRefusals = 100;

class RealClock final : public Clock {
public:
    Time now() override { return std::chrono::steady_clock::now(); }
    void wait_until(Time time) override { std::this_thread::sleep_until(time); }
};

Clock& real_clock() {
    static RealClock clock;
    return clock;
}

[[noreturn]] void raise_end() { RuntimeRaise("ThreadEndException", "the thread was killed"); }

// Whatever comes behind a thread's code, such as what an exception leads to, is done in peace.
class NotKillableFromHere {
public:
    explicit NotKillableFromHere(bool& is_killable) : is_killable_(is_killable) {}
    ~NotKillableFromHere() { is_killable_ = false; }
    NotKillableFromHere(const NotKillableFromHere&) = delete;
    NotKillableFromHere& operator=(const NotKillableFromHere&) = delete;

private:
    bool& is_killable_;
};

}  // namespace

Task::Task(std::int32_t number, Start start, void (*entry)())
    : number_(number), code_(start.code), owner_(std::move(start.owner)), fiber_(start.stack_bytes, entry) {
    priority = start.priority;
}

bool Task::can_go_on() const { return call_ == nullptr && !is_suspended_ && !sleeps_until_; }

// What unwinds, releases or is over isn't interrupted.
bool Task::is_to_end_now() const {
    return is_killed_ && is_killable_ && releases.depth == 0 && std::uncaught_exceptions() == 0;
}

ThreadState Task::state() const {
    if (call_ != nullptr) return ThreadState::kWaiting;
    if (can_go_on()) return ThreadState::kRunning;
    return is_suspended_ ? ThreadState::kSuspended : ThreadState::kSleeping;
}

Task& Scheduler::start(Task::Start start) {
    Task& task = tasks_.emplace_back(++last_number_, std::move(start), &Scheduler::run_task);
    task.place_ = std::prev(tasks_.end());
    place(task);
    return task;
}

void Scheduler::suspend(Task& task) {
    task.is_suspended_ = !task.is_killed_;
    place(task);
    if (&task == current_) yield();
}

void Scheduler::resume(Task& task) {
    task.is_suspended_ = false;
    if (task.sleeps_until_ && task.wakes_early_) wake(task);
    place(task);
}

void Scheduler::sleep(Task* task, milliseconds time, bool wakes_early) {
    if (task == nullptr) return sleep_on_main_stack(clock_->now() + time);
    if (time > milliseconds::zero() && !task->is_killed_) {
        wake(*task);
        task->sleeps_until_ = clock_->now() + time;
        task->wakes_early_ = wakes_early;
        sleepers_.emplace(Sleeper(*task->sleeps_until_, task->number_), task);
        place(*task);
    }
    if (task == current_) yield();
}

void Scheduler::kill(Task& task) {
    task.is_killed_ = true;
    task.is_suspended_ = false;
    wake(task);
    place(task);
    if (&task == current_ && task.is_killable_) raise_end();
}

void Scheduler::set_priority(Task& task, std::int32_t priority) {
    const bool was_queued = task.is_queued();
    if (was_queued) ready_.remove(task);
    task.priority = priority;
    if (was_queued) ready_.add(task);
}

void Scheduler::yield() {
    if (current_ == nullptr) {
        run_round(std::nullopt);
        return;
    }
    Task& task = *current_;
    if (task.can_go_on()) ready_.add(task);
    leave();
    if (task.is_to_end_now()) raise_end();
}

void Scheduler::pass_ended() {
    if (--passes_to_look_ > 0) return;
    const Time time = clock_->now();
    const bool passes_are_short = time - last_look_ < kShortPasses;
    passes_between_looks_ = passes_are_short ? std::min(2 * passes_between_looks_, kMostPassesBetweenLooks) : 1;
    passes_to_look_ = passes_between_looks_;
    last_look_ = time;
    if (!turn_ends_) turn_ends_ = time + kTurn;
    if (time < *turn_ends_) return;
    turn_ends_.reset();
    yield();
}

void Scheduler::run_threads() {
    if (current_ == nullptr) run_round(kTurnsBeginFor);
    arrange_wake_up();
}

void Scheduler::arrange_wake_up() {
    if (current_ != nullptr) return;
    const Time wanted = !ready_.empty()      ? Time::min()
                        : !sleepers_.empty() ? sleepers_.begin()->first.first
                                             : Time::max();
    wake_up().at(WakeUp::kThreads, wanted);
}

void Scheduler::call_on_main_stack(const std::function<void()>& function) {
    if (current_ == nullptr) return function();
    Task& caller = *current_;
    caller.call_ = &function;
    caller_ = &caller;
    switch_stacks(nullptr);
    if (!caller.can_go_on()) leave();
    if (caller.failure_) std::rethrow_exception(std::exchange(caller.failure_, nullptr));
}

void Scheduler::end_all() {
    // Whoever waits for a call goes on only when the call is over.
    const auto can_end = [](const Task& task) { return task.call_ == nullptr; };
    const auto next = [&] { return std::ranges::find_if(tasks_, can_end); };
    for (auto task = next(); task != tasks_.end(); task = next()) end(*task);
    count();
    arrange_wake_up();
}

void Scheduler::use_clock(Clock* clock) { clock_ = clock == nullptr ? &real_clock() : clock; }

// The first and the last frame of a thread's stack.
void Scheduler::run_task() {
    Scheduler& self = scheduler();
    Task& task = *self.current_;
    task.fiber_.arrive();
    self.arrived();
    deliver([&] {
        if (task.is_killed_) return;
        const NotKillableFromHere when_left(task.is_killable_);
        task.code_.run();
    });
    task.code_.ended();
    deliver([&] { const Ref<Object> released = std::move(task.owner_); });
    self.finished_ = &task;
    self.switch_stacks(self.next_task(), Fiber::Leaving::kForGood);
    std::terminate();
}

void Scheduler::switch_stacks(Task* next, Fiber::Leaving leaving) {
    if (next == current_) return;
    Fiber& from = fiber_of(std::exchange(current_, next));
    count();
    Fiber::go(from, fiber_of(next), leaving);
    arrived();
}

void Scheduler::arrived() {
    passes_to_look_ = passes_between_looks_ = 1;
    if (finished_ != nullptr) tasks_.erase(std::exchange(finished_, nullptr)->place_);
}

// On the main stack a thread may have come back only to have a call made; it goes on with its turn then.
void Scheduler::switch_to(Task* next) {
    switch_stacks(next);
    while (current_ == nullptr && caller_ != nullptr) make_call_of(*std::exchange(caller_, nullptr));
}

void Scheduler::make_call_of(Task& caller) {
    const auto no_turn_from = std::exchange(no_turn_from_, std::nullopt);
    const auto turn_ends = std::exchange(turn_ends_, std::nullopt);
    arrange_wake_up();
    try {
        (*caller.call_)();
    } catch (...) {
        caller.failure_ = std::current_exception();
    }
    no_turn_from_ = no_turn_from;
    turn_ends_ = turn_ends;
    caller.call_ = nullptr;
    switch_stacks(&caller);
}

// Lets one thread have a turn, and others after it while the window is open. Whether there was one.
bool Scheduler::run_round(std::optional<milliseconds> window) {
    wake_all_due();
    if (ready_.empty()) {
        turn_ends_.reset();
        return false;
    }
    const Time begin = clock_->now();
    const auto before = std::exchange(no_turn_from_, std::nullopt);
    if (window) no_turn_from_ = begin + *window;
    switch_to(take_task(begin));
    no_turn_from_ = before;
    turn_ends_.reset();
    return true;
}

// Who goes on when the current thread leaves: nullptr for the main stack.
Task* Scheduler::next_task() {
    if (!no_turn_from_) return nullptr;
    const Time time = clock_->now();
    if (time >= *no_turn_from_) return nullptr;
    wake_all_due();
    return take_task(time);
}

Task* Scheduler::take_task(Time time) {
    turn_ends_ = time + kTurn;
    last_look_ = time;
    return static_cast<Task*>(ready_.take());
}

// Returns when the current thread has its next turn.
void Scheduler::leave() {
    do switch_to(next_task());
    while (!current_->can_go_on());
}

// Brings the queue, and the front, up to date with what a thread waits for.
void Scheduler::place(Task& task) {
    if (&task == current_) return;
    if (task.can_go_on() != task.is_queued()) task.is_queued() ? ready_.remove(task) : ready_.add(task);
    count();
    arrange_wake_up();
}

void Scheduler::wake(Task& task) {
    if (!task.sleeps_until_) return;
    sleepers_.erase(Sleeper(*task.sleeps_until_, task.number_));
    task.sleeps_until_.reset();
}

void Scheduler::wake_all_due() {
    if (sleepers_.empty()) return;
    const Time time = clock_->now();
    while (!sleepers_.empty() && sleepers_.begin()->first.first <= time) {
        Task& task = *sleepers_.begin()->second;
        wake(task);
        if (task.can_go_on()) ready_.add(task);
    }
}

void Scheduler::sleep_on_main_stack(Time until) {
    while (clock_->now() < until) {
        if (run_round(std::nullopt)) continue;
        const Time next = sleepers_.empty() ? until : std::min(until, sleepers_.begin()->first.first);
        clock_->wait_until(next);
    }
}

void Scheduler::count() {
    const std::size_t running = current_ == nullptr ? 0 : 1;
    runtime_threads_under_way = static_cast<std::int32_t>(ready_.size() + sleepers_.size() + running);
}

void Scheduler::end(Task& task) {
    const auto is_there = [this, number = task.number_] {
        return std::ranges::find(tasks_, number, &Task::number_) != tasks_.end();
    };
    kill(task);
    no_turn_from_.reset();
    for (int time = 0; time < kMostRefusals; ++time) {
        ready_.remove(task);
        switch_to(&task);
        if (!is_there()) return;
    }
    ready_.remove(task);
    if (task.owner_) task.code_.ended();
    tasks_.erase(task.place_);
}

Scheduler& scheduler() {
    static auto* const the_scheduler = new Scheduler;  // outlives whatever might still be released at the end
    return *the_scheduler;
}

bool is_end_of_thread(const Object* exception) {
    return scheduler().current() != nullptr && RuntimeObjectIsa(exception, RuntimeFindClass("ThreadEndException"));
}

}  // namespace core

void RuntimeShareTime() { core::scheduler().pass_ended(); }

}  // namespace tavrik
