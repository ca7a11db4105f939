#include "data/thread.h"

#include "runtime/frame.h"
#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/core/wake_up.h"

#include <tavrik/runtime.h>

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <stdexcept>

namespace tavrik::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

const auto kBoth = testing::AnyOf("ab", "ba");

// Time that passes only when a test says so, or when nobody has anything to do.
struct FakeClock final : core::Clock {
    core::Time now() override { return time; }
    void wait_until(core::Time until) override { time = until; }

    core::Time time{};
};

void yield() { YieldToNextThread(nullptr); }

class Threads : public testing::Test {
protected:
    Threads() {
        journal().clear();
        core::scheduler().use_clock(&clock_);
    }
    ~Threads() override {
        core::scheduler().end_all();
        core::scheduler().use_clock(nullptr);
        code().clear();
    }

    static Ref<Thread> make_thread(std::function<void()> run) {
        Ref<Thread> thread = make<Thread>();
        code()[thread.object()] = std::move(run);
        RuntimeInstallInstanceEventHandler(thread.object(), "Run"_s, reinterpret_cast<Function>(&run_code));
        return thread;
    }
    static Ref<Thread> start(std::function<void()> run, std::int32_t priority = 5) {
        Ref<Thread> thread = make_thread(std::move(run));
        thread->set_Priority(priority);
        thread->Run();
        return thread;
    }
    // Writes its name at each turn, for ever.
    Ref<Thread> start_writer(char name, std::int32_t priority = 5) {
        const auto write = [this, name] {
            for (;; yield()) log += name;
        };
        return start(write, priority);
    }
    // What is written in so many turns.
    std::string turns(int count) {
        log.clear();
        for (int i = 0; i < count; ++i) yield();
        return log;
    }
    static ThreadState state(const Ref<Thread>& thread) { return ThreadState{thread->State()}; }

    Balance balance_;
    FakeClock clock_;
    RecordingFront front_;
    std::string log;

private:
    static std::map<Object*, std::function<void()>>& code() {
        static std::map<Object*, std::function<void()>> all;
        return all;
    }
    static void run_code(Object* thread) { code().at(thread)(); }
};

TEST_F(Threads, Of_one_priority_take_turns_and_others_get_turns_in_proportion) {
    start_writer('a');
    const Ref<Thread> b = start_writer('b');
    start_writer('c');
    EXPECT_EQ(turns(7), "abcabca");
    b->set_Priority(10);
    const std::string many = turns(400);
    EXPECT_EQ(std::ranges::count(many, 'b'), 200);
    EXPECT_EQ(std::ranges::count(many, 'c'), 100);
    EXPECT_EQ(many.find("bbb"), std::string::npos) << "turns are spread evenly";
    start_writer('d', 1);
    const std::string more = turns(2100);
    EXPECT_NEAR(static_cast<double>(std::ranges::count(more, 'd')), 100, 1);
}

TEST_F(Threads, Are_held_while_they_run_and_can_run_again) {
    const Ref<Thread> thread = make_thread([&] {
        log += TAVRIKGetCurrentThread(nullptr, 0) ? "run " : "nobody ";
        yield();
    });
    EXPECT_EQ(state(thread), ThreadState::kNotRunning);
    for (int time = 0; time < 2; ++time) {
        thread->Run();
        EXPECT_EQ(class_raised_by([&] { thread->Run(); }), "ThreadAlreadyRunningException");
        yield();
        EXPECT_EQ(state(thread), ThreadState::kRunning);
        EXPECT_EQ(thread->count, 2);
        EXPECT_FALSE(TAVRIKGetCurrentThread(nullptr, 0));
        yield();
        EXPECT_EQ(state(thread), ThreadState::kNotRunning);
        EXPECT_EQ(thread->count, 1);
    }
    EXPECT_EQ(log, "run run ");
    EXPECT_EQ(make<Thread>()->ThreadID(), thread->ThreadID() + 1);
}

TEST_F(Threads, Suspended_or_asleep_get_no_turns) {
    Ref<Thread> a = start_writer('a');
    const Ref<Thread> b = start_writer('b');
    a->Suspend();
    EXPECT_EQ(state(a), ThreadState::kSuspended);
    EXPECT_EQ(turns(3), "bbb");
    b->Sleep(10, false);
    a->Resume();
    b->Resume();
    EXPECT_EQ(state(b), ThreadState::kSleeping) << "it wasn't to wake early";
    EXPECT_EQ(turns(3), "aaa");
    clock_.time += 10ms;
    EXPECT_EQ(turns(4), "abab");

    b->Sleep(10, true);
    EXPECT_EQ(turns(2), "aa");
    b->Resume();
    EXPECT_THAT(turns(2), kBoth);
    b->Sleep(10, false);
    b->Suspend();
    clock_.time += 10ms;
    EXPECT_EQ(turns(2), "aa");
    b->Resume();
    EXPECT_THAT(turns(2), kBoth);
}

TEST_F(Threads, That_sleep_wake_in_the_order_of_their_times_while_the_main_one_sleeps) {
    for (const std::int32_t ms : {30, 10, 20, 10}) {
        start([this, ms] {
            AppSleepCurrentThread(nullptr, ms);
            log += std::to_string((clock_.time - core::Time{}) / 1ms) + " ";
        });
    }
    AppSleepCurrentThread(nullptr, 25);
    EXPECT_EQ(log, "10 10 20 ");
    EXPECT_EQ(clock_.time, core::Time{25ms});
    AppSleepCurrentThread(nullptr, 25);
    EXPECT_EQ(log, "10 10 20 30 ");
}

TEST_F(Threads, End_their_turns_by_time_and_only_while_there_are_others) {
    RuntimeBackgroundTask();
    const auto work = [this](const char* name) {
        for (int pass = 0; pass < 20; ++pass) {
            log += name;
            clock_.time += 2ms;
            RuntimeBackgroundTask();
        }
    };
    start([&] { work("a"); });
    start([&] { work("b"); });
    work("m");
    EXPECT_EQ(log, "mmmmmaaaammmmmbbbbmmmmmaaaammmmmbbbb");
    yield();
    EXPECT_EQ(log.substr(36), "aaaa");
}

TEST_F(Threads, The_event_loop_is_kept_waiting_for_one_slice_at_most) {
    const auto busy = [this] {
        for (;;) {
            clock_.time += 1ms;
            RuntimeBackgroundTask();
        }
    };
    for (int i = 0; i < 20; ++i) i % 2 ? start(busy) : start_writer('a');
    for (int round = 0; round < 50; ++round) {
        const core::Time begin = clock_.time;
        core::scheduler().run_threads();
        EXPECT_LE(clock_.time - begin, 10ms);
        EXPECT_GT(clock_.time, begin);
    }
}

TEST_F(Threads, The_front_is_told_when_they_want_to_run) {
    const auto told = [this] { return std::exchange(front_.wake_ups, {}); };
    const Ref<Thread> thread = make_thread([] { AppSleepCurrentThread(nullptr, 30); });
    EXPECT_THAT(told(), ElementsAre());
    thread->Run();
    EXPECT_THAT(told(), ElementsAre(0ms));
    core::wake_up().woken();
    EXPECT_THAT(told(), ElementsAre(30ms));
    thread->Sleep(20, true);
    EXPECT_THAT(told(), ElementsAre(20ms));
    thread->Resume();
    EXPECT_THAT(told(), ElementsAre(0ms));
    core::wake_up().woken();
    EXPECT_THAT(told(), ElementsAre());

    thread->Run();
    core::wake_up().woken();
    start([] { core::show_message({.text = "open for long"}); });
    told();
    front_.when_message = [&] { EXPECT_THAT(told(), ElementsAre(30ms)) << "others sleep on behind the dialog"; };
    core::wake_up().woken();
    EXPECT_EQ(front_.messages.size(), 1u);
}

TEST_F(Threads, Sizes_and_priorities_have_bounds) {
    const Ref<Thread> thread = make<Thread>();
    for (const std::int32_t priority : {0, 11, -1}) {
        EXPECT_EQ(class_raised_by([&] { thread->set_Priority(priority); }), "OutOfBoundsException");
    }
    EXPECT_EQ(thread->Priority(), 5);
    EXPECT_EQ(class_raised_by([&] { thread->set_StackSize(-1); }), "OutOfBoundsException");
    for (const auto& [set, size] : {std::pair{1, 64}, {0, 512}, {1024 * 1024, 1024}}) {
        thread->set_StackSize(set);
        EXPECT_EQ(thread->StackSize(), size * 1024);
    }
}

class Kills : public Threads {
protected:
    // Holds things in a frame and in C++, waits in the given way for its end, and writes that it has come.
    void hold_until_killed(const std::function<void()>& wait, const char* name = "end") {
        const Ref<Probe> probe = make_probe(1);
        const auto hold = [&] {
            const Frame frame(probe.object());
            for (;;) wait();
        };
        const Ref<Object> raised = raised_by(hold);
        if (is_a<ThreadEndException>(raised) && probe->count == 1) log += name;
        RuntimeReraiseException(raised.object());
    }
};

TEST_F(Kills, End_a_thread_wherever_it_waits_and_unwind_its_frames) {
    const std::function<void()> ways[] = {
        yield,
        [] { AppSleepCurrentThread(nullptr, 1000); },
        [] { ThreadSuspend(TAVRIKGetCurrentThread(nullptr, 0).object()); },
        [this] {
            clock_.time += 20ms;
            RuntimeBackgroundTask();
        },
    };
    for (const auto& wait : ways) {
        const Ref<Thread> thread = start([&] { hold_until_killed(wait); });
        yield();
        thread->Kill();
        EXPECT_EQ(log, "") << "it takes effect at its next turn";
        yield();
        EXPECT_EQ(std::exchange(log, ""), "end");
        EXPECT_EQ(state(thread), ThreadState::kNotRunning);
    }
    EXPECT_THAT(front_.messages, ElementsAre()) << "it ends quietly";
}

TEST_F(Kills, Of_itself_come_at_once_and_of_what_does_not_run_never) {
    const Ref<Thread> thread =
        make_thread([&] { hold_until_killed([] { ThreadKill(TAVRIKGetCurrentThread(nullptr, 0).object()); }); });
    thread->Kill();
    thread->Run();
    yield();
    EXPECT_EQ(log, "end");
    thread->Run();
    thread->Kill();
    yield();
    EXPECT_EQ(state(thread), ThreadState::kNotRunning);
    EXPECT_EQ(log, "end") << "its code didn't begin";
}

TEST_F(Kills, Come_again_to_a_thread_that_goes_on_but_not_while_it_releases) {
    const Ref<Thread> thread = start([&] {
        for (int time = 0; time < 3; ++time) {
            log += class_raised_by([] { AppSleepCurrentThread(nullptr, 10); });
            const Ref<Probe> probe = make_probe(1);
            probe->in_destructor = [](Probe*) { yield(); };
        }
        log += " done";
    });
    yield();
    thread->Kill();
    EXPECT_EQ(turns(10), "ThreadEndExceptionThreadEndExceptionThreadEndException done");
    EXPECT_EQ(journal(), Journal({"destroy 1", "exit 1", "destroy 1", "exit 1", "destroy 1", "exit 1"}));
}

TEST_F(Kills, At_the_end_of_the_program_go_in_the_order_of_the_starts) {
    for (const char* name : {"a", "b", "c"}) start([this, name] { hold_until_killed(yield, name); });
    start([] {
        for (;;) class_raised_by(yield);
    });
    turns(4);
    RuntimeRun();
    EXPECT_EQ(log, "abc");
    EXPECT_EQ(runtime_threads_under_way, 0);
}

TEST_F(Threads, An_exception_that_leaves_one_is_told_and_ends_that_one_only) {
    start_writer('a');
    const Ref<Thread> raising = start([] { raise<KeyNotFoundException>("from the thread"); });
    const Ref<Thread> throwing = start([] { throw std::runtime_error("from below"); });
    const Ref<Thread> ending = start([] { raise<EndException>(); });
    EXPECT_EQ(turns(6), "aaa");
    EXPECT_THAT(front_.messages, ElementsAre("from the thread", "from below"));
    EXPECT_EQ(state(raising), ThreadState::kNotRunning);
    EXPECT_EQ(front_.quits, 1);
}

TEST_F(Threads, Know_of_failures_and_cancels_of_their_own) {
    start([] {
        core::EventScope::note_failure("the thread's");
        core::EventScope::note_cancel();
        yield();
        RaiseNilObjectException();
    });
    core::deliver([] {
        core::EventScope::note_failure("the main one's");
        yield();
        RaiseNilObjectException();
    });
    yield();
    EXPECT_THAT(front_.messages, ElementsAre("the main one's")) << "and the thread's is silent after its cancel";
}

TEST_F(Threads, Switch_inside_a_catch_without_mixing_their_exceptions) {
    for (const char* name : {"a", "b"}) {
        start([this, name] {
            try {
                throw std::runtime_error(name);
            } catch (...) {
                yield();
                raised_by([] { raise<RuntimeException>(); });
                yield();
                try {
                    throw;
                } catch (const std::exception& again) {
                    log += again.what() + std::to_string(std::uncaught_exceptions());
                }
            }
        });
    }
    EXPECT_EQ(turns(6), "a0b0");
}

std::int32_t descend(Object* self, std::int32_t depth) {
    const Frame frame(self);
    return depth == 0 ? 0 : descend(self, depth - 1) + 1;
}

TEST_F(Threads, An_overflow_is_raised_in_the_one_that_went_too_deep) {
    const Ref<Probe> probe = make_probe(1);
    for (const std::int32_t size : {64 * 1024, 0, 4 * 1024 * 1024}) {
        const Ref<Thread> thread = make_thread([&] {
            log += class_raised_by([&] { descend(probe.object(), INT32_MAX); });
            EXPECT_EQ(probe->count, 1);
            yield();
            EXPECT_EQ(descend(probe.object(), 20), 20);
        });
        thread->set_StackSize(size);
        thread->Run();
        yield();
        EXPECT_EQ(std::exchange(log, ""), "StackOverflowException");
        EXPECT_EQ(descend(probe.object(), 20), 20);
        yield();
    }
}

TEST_F(Threads, A_dialog_that_one_asks_for_is_the_main_ones_while_others_go_on) {
    start_writer('a');
    const Ref<Thread> asking = start([this] {
        core::show_message({.text = "ready?"});
        log += "answered";
    });
    front_.when_message = [&] {
        EXPECT_EQ(core::scheduler().current(), nullptr);
        EXPECT_EQ(state(asking), ThreadState::kWaiting);
        asking->Kill();
        yield();
        log += "!";
    };
    EXPECT_EQ(turns(2), "aa!answered");
    EXPECT_THAT(front_.messages, ElementsAre("ready?"));
}

TEST_F(Threads, What_one_releases_is_gone_though_another_is_inside_a_destructor) {
    start([this] {
        make_probe(1)->in_destructor = [](Probe*) { ThreadSuspend(TAVRIKGetCurrentThread(nullptr, 0).object()); };
        log += "a";
    });
    start([this] {
        Ref<Probe> last = make_probe(2);
        for (std::int32_t number = 3; number < 200; ++number) {
            Ref<Probe> next = make_probe(number);
            next->first = last.release();
            last = std::move(next);
        }
        last = nullptr;
        log += journal().back();
    });
    EXPECT_EQ(turns(2), "exit 2");
}

TEST_F(Threads, Ten_thousand_can_be_alive_at_once) {
    constexpr int kMany = 10'000;
    for (int i = 0; i < kMany; ++i) {
        start([this] {
            log += 'b';
            yield();
            log += 'e';
        });
    }
    EXPECT_EQ(turns(kMany), std::string(kMany, 'b'));
    EXPECT_EQ(turns(kMany), std::string(kMany, 'e'));
}

}  // namespace
}  // namespace tavrik::test
