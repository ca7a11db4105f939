// The same round trips by the system's own means.
#include <benchmark/benchmark.h>

#include <ucontext.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace tavrik::bench {
namespace {

struct Contexts {
    ucontext_t main{};
    ucontext_t other{};
};

Contexts& contexts() {
    static Contexts both;
    return both;
}

void go_back_for_ever() {
    for (;;) ::swapcontext(&contexts().other, &contexts().main);
}

void swapcontext_round_trip(benchmark::State& state) {
    constexpr std::size_t kStack = std::size_t{512} * 1024;
    const auto stack = std::make_unique<std::byte[]>(kStack);
    ucontext_t& other = contexts().other;
    ::getcontext(&other);
    other.uc_stack.ss_sp = stack.get();
    other.uc_stack.ss_size = kStack;
    ::makecontext(&other, go_back_for_ever, 0);
    for (auto _ : state) ::swapcontext(&contexts().main, &other);
}
BENCHMARK(swapcontext_round_trip);

// Whose turn it is, of two threads of the system.
class Baton {
public:
    enum class Holder { kMain, kOther, kNobody };

    void hand_to(Holder next) {
        const std::lock_guard lock(mutex_);
        holder_ = next;
        changed_.notify_all();
    }
    Holder wait_unless(Holder other) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return holder_ != other; });
        return holder_;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    Holder holder_ = Holder::kMain;
};

void system_thread_round_trip(benchmark::State& state) {
    Baton baton;
    std::thread other([&] {
        while (baton.wait_unless(Baton::Holder::kMain) == Baton::Holder::kOther) baton.hand_to(Baton::Holder::kMain);
    });
    for (auto _ : state) {
        baton.hand_to(Baton::Holder::kOther);
        baton.wait_unless(Baton::Holder::kOther);
    }
    baton.hand_to(Baton::Holder::kNobody);
    other.join();
}
BENCHMARK(system_thread_round_trip)->UseRealTime();

}  // namespace
}  // namespace tavrik::bench
