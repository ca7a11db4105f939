#include "tests/support/balance.h"
#include "tests/support/raised.h"
#include "ui/quit_menu_item.h"

#include <tavrik/runtime.h>

namespace tavrik::test {

// A bell with a free event, and one whose class handles it.
struct Bell : Class<Bell> {
    static const ClassDefinition& definition();

    struct Events {
        static inline constinit Event<bool(std::int32_t)> Ring, Silence;
    };
};

struct LoudBell : Class<LoudBell, Bell> {
    static const ClassDefinition& definition();

    bool Event_Ring(std::int32_t times) { return dispatch<&LoudBell::Event_Ring>(this, times); }
};

namespace {

bool ring_loudly(LoudBell*, std::int32_t times) { return times == 3; }

constexpr EventRow kBellEvents[] = {event("Ring", Bell::Events::Ring), event("Silence", Bell::Events::Silence)};
constexpr OperationRow kLoudOperations[] = {operation<&LoudBell::Event_Ring, ring_loudly>("Event_Ring")};
constexpr HandlerRow kLoudHandlers[] = {handles<&LoudBell::Event_Ring>("Ring", Bell::Events::Ring)};

bool ring_twice(Object*, std::int32_t times) { return times == 2; }
Function twice() { return reinterpret_cast<Function>(&ring_twice); }

}  // namespace

const ClassDefinition& Bell::definition() {
    static constexpr ClassDefinition kDefinition = define<Bell>({.events = kBellEvents});
    return kDefinition;
}

const ClassDefinition& LoudBell::definition() {
    static constexpr ClassDefinition kDefinition =
        define<LoudBell>({.operations = kLoudOperations, .handlers = kLoudHandlers});
    return kDefinition;
}

namespace {

TEST(InstanceEvents, A_handler_serves_one_event_of_one_object) {
    const Balance balance;
    const Ref<Bell> bell = make<Bell>();
    const Ref<Bell> other = make<Bell>();
    RuntimeInstallInstanceEventHandler(bell.object(), "Ring"_s, twice());
    EXPECT_TRUE(Bell::Events::Ring.raise(bell.get(), 2));
    EXPECT_FALSE(Bell::Events::Ring.raise(bell.get(), 1));
    EXPECT_FALSE(Bell::Events::Silence.raise(bell.get(), 2));
    EXPECT_FALSE(Bell::Events::Ring.raise(other.get(), 2));
    EXPECT_FALSE(Bell::Events::Ring.raise(make<Bell>().get(), 2));
}

TEST(InstanceEvents, A_handler_goes_before_that_of_the_class_and_nil_gives_it_back) {
    const Balance balance;
    const Ref<LoudBell> bell = make<LoudBell>();
    EXPECT_TRUE(Bell::Events::Ring.raise(bell.get(), 3));
    RuntimeInstallInstanceEventHandler(bell.object(), "Ring"_s, twice());
    EXPECT_FALSE(Bell::Events::Ring.raise(bell.get(), 3));
    EXPECT_TRUE(Bell::Events::Ring.raise(bell.get(), 2));
    RuntimeInstallInstanceEventHandler(bell.object(), "Ring"_s, nullptr);
    EXPECT_TRUE(Bell::Events::Ring.raise(bell.get(), 3));
}

TEST(InstanceEvents, Of_two_events_of_a_name_the_newest_takes_the_handler) {
    const Balance balance;
    const Ref<QuitMenuItem> item = make<QuitMenuItem>();
    const Function quits = item->events[MenuItem::Events::Action.index].handler;
    RuntimeInstallInstanceEventHandler(item.object(), "Action"_s, twice());
    EXPECT_EQ(item->events[MenuItem::Events::Action.index].handler, quits);
    EXPECT_EQ(item->events[QuitMenuItem::Events::Action.index].handler, twice());
}

TEST(InstanceEvents, An_unknown_event_raises_and_names_class_and_event) {
    const Balance balance;
    const Ref<Bell> bell = make<Bell>();
    for (const char* name : {"Toll", "ring", ""}) {
        const Ref<Object> raised = raised_by(
            [&] { RuntimeInstallInstanceEventHandler(bell.object(), String(std::string_view(name)), twice()); });
        EXPECT_EQ(class_of(raised), "UnsupportedFormatException");
        EXPECT_EQ(message_of(raised), std::string("test.Bell has no event ") + name);
    }
    EXPECT_EQ(class_raised_by([] { RuntimeInstallInstanceEventHandler(nullptr, "Ring"_s, twice()); }),
              "NilObjectException");
}

}  // namespace
}  // namespace tavrik::test
