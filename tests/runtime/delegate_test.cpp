#include "runtime/delegate.h"

#include "tests/support/balance.h"
#include "tests/support/probe.h"

namespace tavrik::test {
namespace {

void count_call(Object* target) { ++static_cast<Probe*>(target)->number; }

TEST(Delegate, Calls_its_function_with_the_object_that_it_holds) {
    const Balance balance;
    const Ref<Probe> target = make_probe(4);
    const auto function = reinterpret_cast<Function>(&count_call);
    const Ref<Delegate> delegate = RuntimeCreateDelegate(nullptr, function, target.object(), nullptr);
    EXPECT_EQ(target->count, 2);
    Delegate_IM_Invoke(delegate.object());
    EXPECT_EQ(target->number, 5);
    EXPECT_FALSE(RuntimeCreateDelegate(nullptr, nullptr, target.object(), nullptr));
}

}  // namespace
}  // namespace tavrik::test
