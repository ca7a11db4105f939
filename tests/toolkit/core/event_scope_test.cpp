#include "toolkit/core/event_scope.h"

#include "maptool/app.h"
#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"

#include <tavrik/runtime.h>

#include <gmock/gmock.h>

#include <stdexcept>

namespace tavrik::test {
namespace {

using Messages = std::vector<std::string>;

class Events : public testing::Test {
protected:
    Balance balance_;
    RecordingFront front_;
};

struct Ending {
    void (*code)();
    std::string told;
};

TEST_F(Events, That_end_by_an_exception_tell_it_unless_a_cancel_explains_it) {
    const Ending endings[] = {
        {[] { raise<KeyNotFoundException>("no such key"); }, "no such key"},
        {[] { raise<KeyNotFoundException>(); }, "KeyNotFoundException"},
        {[] { throw std::runtime_error("out of luck"); }, "out of luck"},
        {[] { make_probe(1)->in_destructor = [](Probe*) { raise<RuntimeException>("from the destructor"); }; },
         "from the destructor"},
        {[] {
             core::EventScope::note_failure("the first");
             core::EventScope::note_failure("the last");
             core::deliver([] {
                 core::EventScope::note_failure("inner");
                 core::EventScope::note_cancel();
             });
             RaiseNilObjectException();
         },
         "the last"},
        {[] {
             core::EventScope::note_cancel();
             raise<OutOfBoundsException>("still told");
         },
         "still told"},
    };
    for (const auto& [code, told] : endings) {
        front_.messages.clear();
        core::deliver(code);
        EXPECT_THAT(front_.messages, testing::ElementsAre(testing::HasSubstr(told)));
    }
    front_.messages.clear();
    core::deliver([] {
        core::EventScope::note_cancel();
        RaiseNilObjectException();
    });
    EXPECT_EQ(front_.messages, Messages{});
}

TEST_F(Events, An_end_exception_quits) {
    core::deliver([] { raise<EndException>(); });
    EXPECT_EQ(front_.messages, Messages{});
    EXPECT_EQ(front_.quits, 1);
    EXPECT_TRUE(core::has_quit());
}

TEST_F(Events, Tell_what_the_application_does_not_take) {
    const Ref<App> app = make<App>();
    const auto handler = [](Object*, Object* exception) -> bool {
        if (is_a<OutOfBoundsException>(exception)) raise<RuntimeException>("the handler failed");
        return is_a<KeyNotFoundException>(exception);
    };
    RuntimeInstallInstanceEventHandler(app.object(), "UnhandledException"_s,
                                       reinterpret_cast<Function>(static_cast<bool (*)(Object*, Object*)>(handler)));
    RuntimeRegisterAppObject(app.object());
    core::deliver([] { raise<KeyNotFoundException>("taken"); });
    core::deliver([] { raise<IllegalCastException>("not taken"); });
    core::deliver([] { raise<OutOfBoundsException>("not told"); });
    RuntimeRegisterAppObject(nullptr);
    EXPECT_EQ(front_.messages, (Messages{"not taken", "the handler failed"}));
}

}  // namespace
}  // namespace tavrik::test
