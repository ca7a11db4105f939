#include "toolkit/core/fiber.h"

#include "toolkit/core/stack_trace.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <functional>
#include <numeric>

namespace tavrik::test {
namespace {

// A fiber that runs code given by a test, up to where it hands over to the test for the last time.
class Ping {
public:
    explicit Ping(std::function<void()> code) : code_(std::move(code)) { running = this; }

    void go() { core::Fiber::go(test_, fiber_); }
    void back() { core::Fiber::go(fiber_, test_); }

    static inline Ping* running = nullptr;

private:
    static void begin() {
        running->fiber_.arrive();
        running->code_();
        core::Fiber::go(running->fiber_, running->test_, core::Fiber::Leaving::kForGood);
    }

    std::function<void()> code_;
    core::Fiber test_;
    core::Fiber fiber_{std::size_t{256} * 1024, &begin};
};

TEST(Fiber, Goes_on_where_it_was_left_with_values_of_its_own) {
    std::vector<double> seen;
    Ping ping([&] {
        double sum = 0.5;
        for (int i = 0; i < 4; ++i) {
            seen.push_back(sum += i);
            Ping::running->back();
        }
    });
    std::vector<double> own(5, 2.0);
    for (double& value : own) {
        ping.go();
        value *= std::accumulate(seen.begin(), seen.end(), 0.0);
    }
    EXPECT_EQ(seen, (std::vector{0.5, 1.5, 3.5, 6.5}));
    EXPECT_EQ(own, (std::vector{1.0, 4.0, 11.0, 24.0, 24.0}));
}

// Rounded as the processor is told at this moment.
double third() {
    volatile double one = 1;
    volatile double three = 3;
    return one / three;
}

TEST(Fiber, Keeps_the_rounding_of_numbers_to_itself) {
    const double nearest = third();
    double inside = 0;
    Ping ping([&] {
        std::fesetround(FE_UPWARD);
        Ping::running->back();
        inside = third();
    });
    ping.go();
    EXPECT_EQ(third(), nearest);
    EXPECT_EQ(std::fegetround(), FE_TONEAREST);
    ping.go();
    EXPECT_GT(inside, nearest);
    EXPECT_EQ(third(), nearest);
}

TEST(Fiber, Its_frames_can_be_walked_and_end_with_its_stack) {
    std::size_t depth = 0;
    Ping ping([&] { depth = core::StackTrace::here().lines().size(); });
    ping.go();
    EXPECT_GE(depth, 2u);
    EXPECT_LT(depth, 12u);
}

TEST(Fiber, Sizes_of_stacks_are_whole_pages) {
    const core::StackMemory stack(100'000);
    EXPECT_EQ(stack.usable().size(), core::StackMemory::whole_pages(100'000));
    EXPECT_EQ(stack.usable().size() % 4096, 0u);
    EXPECT_DEATH(*(stack.usable().data() - 1) = std::byte{1}, "") << "there is a page below that can't be touched";
}

}  // namespace
}  // namespace tavrik::test
