#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"

#include <tavrik/exception.h>
#include <tavrik/thread.h>

#include <algorithm>
#include <string>

namespace tavrik {
namespace {

constexpr std::int32_t kSmallestStack = 64 * 1024;
constexpr std::int32_t kDefaultStack = 512 * 1024;

constinit core::Event<void()> run_event{"Thread", "Run"};

class ThreadNotes final : public NativeState, public core::ThreadCode {
public:
    explicit ThreadNotes(Object* self) : self_(self) {}

    const std::int32_t id = ++last_id;
    std::int32_t stack_size = kDefaultStack;
    std::int32_t priority = core::kDefaultPriority;
    core::Task* task = nullptr;  // while it runs

    void start() {
        task = &core::scheduler().start({.code = *this,
                                         .owner = Ref<Object>(self_),
                                         .priority = priority,
                                         .stack_bytes = static_cast<std::size_t>(stack_size)});
    }

private:
    void run() override { run_event(self_); }
    void ended() override { task = nullptr; }

    static inline std::int32_t last_id = 0;

    Object* self_;
};

ThreadNotes& notes(Object* thread) {
    if (thread == nullptr) RaiseNilObjectException();
    if (thread->native == nullptr) ThreadInitializer(thread);
    return *native<ThreadNotes>(thread);
}

// Does it to a thread that runs; nothing holds for others.
template <class Deed>
void while_running(Object* thread, Deed deed) {
    if (core::Task* const task = notes(thread).task) deed(core::scheduler(), *task);
}

[[noreturn]] void raise_out_of_bounds(std::string_view property, std::int32_t value, std::string_view wanted) {
    std::string message("A thread's ");
    message.append(property).append(" can't be ").append(std::to_string(value)).append(": ").append(wanted);
    RuntimeRaise("OutOfBoundsException", message);
}

}  // namespace

void ThreadInitializer(Object* thread) { thread->native = new ThreadNotes(thread); }

void threadRun(Object* thread) {
    ThreadNotes& its = notes(thread);
    if (its.task != nullptr)
        RuntimeRaise("ThreadAlreadyRunningException", "Run was called on a thread that is running");
    its.start();
}

void ThreadSuspend(Object* thread) {
    while_running(thread, [](auto& scheduler, auto& task) { scheduler.suspend(task); });
}

void ThreadResume(Object* thread) {
    while_running(thread, [](auto& scheduler, auto& task) { scheduler.resume(task); });
}

void ThreadSleep(Object* thread, std::int32_t milliseconds, bool wake_early) {
    while_running(thread, [=](auto& scheduler, auto& task) {
        scheduler.sleep(&task, std::chrono::milliseconds(milliseconds), wake_early);
    });
}

void ThreadKill(Object* thread) {
    while_running(thread, [](auto& scheduler, auto& task) { scheduler.kill(task); });
}

std::int32_t ThreadGetStackSize(Object* thread, std::int32_t) { return notes(thread).stack_size; }

void ThreadSetStackSize(Object* thread, std::int32_t, std::int32_t bytes) {
    if (bytes < 0) raise_out_of_bounds("StackSize", bytes, "it is a number of bytes, or 0 for the default");
    notes(thread).stack_size = bytes == 0 ? kDefaultStack : std::max(bytes, kSmallestStack);
}

std::int32_t ThreadGetID(Object* thread, std::int32_t) { return notes(thread).id; }

std::int32_t ThreadGetPriority(Object* thread, std::int32_t) { return notes(thread).priority; }

void ThreadSetPriority(Object* thread, std::int32_t, std::int32_t priority) {
    if (priority < core::kLowestPriority || priority > core::kHighestPriority) {
        raise_out_of_bounds("Priority", priority, "it is from 1 to 10");
    }
    notes(thread).priority = priority;
    while_running(thread, [=](auto& scheduler, auto& task) { scheduler.set_priority(task, priority); });
}

std::int32_t ThreadGetState(Object* thread, std::int32_t) {
    const core::Task* const task = notes(thread).task;
    return static_cast<std::int32_t>(task == nullptr ? ThreadState::kNotRunning : task->state());
}

Ref<Object> TAVRIKGetCurrentThread(Object*, std::int32_t) {
    const core::Task* const task = core::scheduler().current();
    return task == nullptr ? nullptr : Ref<Object>(task->owner());
}

void YieldToNextThread(Object*) { core::scheduler().yield(); }

void AppSleepCurrentThread(Object*, std::int32_t milliseconds) {
    core::Scheduler& scheduler = core::scheduler();
    scheduler.sleep(scheduler.current(), std::chrono::milliseconds(milliseconds), false);
}

}  // namespace tavrik
