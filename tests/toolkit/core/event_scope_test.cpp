#include "toolkit/core/event_scope.h"

#include "maptool/app.h"
#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"

#include <tavrik/runtime.h>

#include <stdexcept>

namespace tavrik::test {
namespace {

using Messages = std::vector<std::string>;

class Events : public testing::Test {
protected:
    Balance balance_;
    RecordingFront front_;
};

TEST_F(Events, What_is_noted_in_an_event_is_forgotten_with_it) {
    core::EventScope::note_failure("before");
    core::deliver([] {
        core::EventScope::note_failure("inside");
        core::EventScope::note_cancel();
    });
    EXPECT_EQ(core::EventScope::last_failure(), "before");
    EXPECT_FALSE(core::EventScope::cancelled());
}

TEST_F(Events, An_exception_ends_its_event_and_is_told) {
    bool went_on = false;
    core::deliver([&] {
        raise<KeyNotFoundException>("no such key");
        went_on = true;
    });
    EXPECT_FALSE(went_on);
    EXPECT_EQ(front_.messages, Messages{"no such key"});
}

TEST_F(Events, An_exception_without_a_message_is_told_by_its_class) {
    core::deliver([] { raise<KeyNotFoundException>(); });
    ASSERT_EQ(front_.messages.size(), 1U);
    EXPECT_NE(front_.messages[0].find("KeyNotFoundException"), std::string::npos) << front_.messages[0];
}

TEST_F(Events, A_failure_of_the_standard_library_is_told_too) {
    core::deliver([] { throw std::runtime_error("out of luck"); });
    EXPECT_EQ(front_.messages, Messages{"out of luck"});
}

TEST_F(Events, What_a_release_raised_is_told_at_the_end) {
    core::deliver([&] {
        Ref<Probe> probe = make_probe(1);
        probe->in_destructor = [](Probe*) { raise<RuntimeException>("from the destructor"); };
        probe = nullptr;
        EXPECT_EQ(front_.messages, Messages{});
    });
    EXPECT_EQ(front_.messages, Messages{"from the destructor"});
    EXPECT_FALSE(RuntimeTakeReleaseException());
}

TEST_F(Events, A_nil_object_exception_tells_the_last_failure) {
    core::deliver([] {
        core::EventScope::note_failure("the first");
        core::EventScope::note_failure("valley.map could not be opened");
        RaiseNilObjectException();
    });
    EXPECT_EQ(front_.messages, Messages{"valley.map could not be opened"});
}

TEST_F(Events, After_a_cancel_a_nil_object_exception_is_silent) {
    core::deliver([] {
        core::EventScope::note_cancel();
        RaiseNilObjectException();
    });
    EXPECT_EQ(front_.messages, Messages{});
}

TEST_F(Events, After_a_cancel_any_other_exception_is_told) {
    core::deliver([] {
        core::EventScope::note_cancel();
        raise<OutOfBoundsException>("still told");
    });
    EXPECT_EQ(front_.messages, Messages{"still told"});
}

TEST_F(Events, A_cancel_silences_its_own_event_alone) {
    core::deliver([] {
        core::EventScope::note_failure("outer");
        core::deliver([] {
            EXPECT_EQ(core::EventScope::last_failure(), "");
            core::EventScope::note_failure("inner");
            core::EventScope::note_cancel();
        });
        EXPECT_FALSE(core::EventScope::cancelled());
        RaiseNilObjectException();
    });
    EXPECT_EQ(front_.messages, Messages{"outer"});
}

TEST_F(Events, An_end_exception_quits) {
    core::deliver([] { raise<EndException>(); });
    EXPECT_EQ(front_.messages, Messages{});
    EXPECT_EQ(front_.quits, 1);
    EXPECT_TRUE(core::has_quit());
}

// With an application object that handles "UnhandledException".
class UnhandledExceptions : public Events {
protected:
    static void handle_with(bool (*handler)(Object*, Object*)) {
        const Ref<App> app = make<App>();
        RuntimeInstallInstanceEventHandler(app.object(), "UnhandledException"_s, reinterpret_cast<Function>(handler));
        RuntimeRegisterAppObject(app.object());
    }
    void TearDown() override { RuntimeRegisterAppObject(nullptr); }
};

TEST_F(UnhandledExceptions, Are_told_when_the_application_does_not_take_them) {
    handle_with([](Object*, Object* exception) { return is_a<KeyNotFoundException>(exception); });
    core::deliver([] { raise<KeyNotFoundException>("taken"); });
    EXPECT_EQ(front_.messages, Messages{});
    core::deliver([] { raise<OutOfBoundsException>("not taken"); });
    EXPECT_EQ(front_.messages, Messages{"not taken"});
}

TEST_F(UnhandledExceptions, Raised_by_the_handler_itself_are_told) {
    handle_with([](Object*, Object*) -> bool { raise<RuntimeException>("the handler failed"); });
    core::deliver([] { raise<OutOfBoundsException>("not taken"); });
    EXPECT_EQ(front_.messages, Messages{"the handler failed"});
}

}  // namespace
}  // namespace tavrik::test
