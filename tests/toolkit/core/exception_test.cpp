#include "runtime/frame.h"
#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "tests/support/small_thread.h"

#include <gmock/gmock.h>

namespace tavrik::test {

// Not hidden, so that the recorded stack knows its name.
[[gnu::noinline]] void raise_from_a_named_function(Object* exception) { RuntimeRaiseException(exception); }

namespace {

using testing::Contains;
using testing::HasSubstr;

std::vector<std::string> stack_of(const Ref<Object>& exception) {
    const Ref<ArrayOf<String>> lines = check_cast<RuntimeException>(exception)->Stack();
    std::vector<std::string> stack;
    for (std::int32_t i = 0; i <= lines->upper_bound(); ++i) stack.emplace_back(lines->at(i).view());
    return stack;
}

TEST(Exception, Stays_the_same_object_from_raise_to_reraise_to_catch) {
    const Balance balance;
    const auto exception = make<KeyNotFoundException>();
    exception->set_Message("which key"_s);
    const Ref<Object> caught = raised_by([&] {
        const Ref<Object> inner = raised_by([&] { RuntimeRaiseException(exception.object()); });
        RuntimeReraiseException(inner.object());
    });
    EXPECT_EQ(caught, exception);
    EXPECT_EQ(message_of(caught), "which key");
    EXPECT_EQ(exception->count, 2);
}

TEST(Exception, The_use_of_a_nil_reference_raises) {
    const Balance balance;
    const Ref<Probe> nil;
    const Arg<Probe> nil_argument(nullptr);
    EXPECT_EQ(class_raised_by([] { RuntimeRaiseException(nullptr); }), "NilObjectException");
    EXPECT_EQ(class_raised_by([&] { ++nil->number; }), "NilObjectException");
    EXPECT_EQ(class_raised_by([&] { ++nil_argument->number; }), "NilObjectException");
}

TEST(Exception, Of_a_class_that_the_program_lacks_can_be_raised_all_the_same) {
    const Balance balance;
    const Ref<Object> first = raised_by([] { RuntimeRaise("TideException", "ebb"); });
    const Ref<Object> second = raised_by([] { RuntimeRaise("TideException", "flood"); });
    EXPECT_EQ(class_of(first), "TideException");
    EXPECT_EQ(message_of(second), "flood");
    EXPECT_EQ(first->record, second->record);
}

TEST(ExceptionStack, Names_the_functions_that_were_running_at_the_first_raise) {
    const auto exception = make<RuntimeException>();
    raised_by([&] { raise_from_a_named_function(exception.object()); });
    const auto first = stack_of(exception);
    EXPECT_THAT(first, Contains(HasSubstr("raise_from_a_named_function")));
    raised_by([&] { RuntimeRaiseException(exception.object()); });
    EXPECT_EQ(stack_of(exception), first);
}

// Calls itself `depth` times with a frame for each.
std::int32_t descend(Object* self, std::int32_t depth) {
    const Frame frame(self);
    return depth == 0 ? 0 : descend(self, depth - 1) + 1;
}

void overflow_twice() {
    const Balance balance;
    const Ref<Probe> probe = make_probe(1);
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(class_raised_by([&] { descend(probe.object(), INT32_MAX); }), "StackOverflowException");
        EXPECT_EQ(probe->count, 1) << "each frame releases what it has locked";
        EXPECT_EQ(descend(probe.object(), 20), 20) << "what follows has the whole stack";
    }
}

TEST(StackCheck, Raises_before_the_stack_of_any_thread_ends) {
    overflow_twice();
    run_on_stack_of(512 * 1024, overflow_twice);
}

}  // namespace
}  // namespace tavrik::test
