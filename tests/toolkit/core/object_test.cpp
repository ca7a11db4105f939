#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "tests/support/recording_front.h"
#include "tests/support/sanitizers.h"
#include "tests/support/small_thread.h"

#include <tavrik/runtime.h>

namespace tavrik::test {
namespace {

class ObjectTest : public testing::Test {
protected:
    void SetUp() override { journal().clear(); }

    Balance balance_;
};

TEST_F(ObjectTest, A_new_object_has_zero_fields_whatever_lay_there_before) {
    Ref<Probe> dirty = make_probe(0x5A5A5A5A);
    ClassRecord* const record = dirty->record;
    dirty = nullptr;

    const Ref<Object> made = RuntimeNewObject(record);
    const auto* const probe = static_cast<Probe*>(made.object());
    EXPECT_EQ(probe->number, 0);
    EXPECT_EQ(probe->first, nullptr);
    EXPECT_EQ(probe->native, nullptr);
    EXPECT_EQ(probe->count, 1);
}

TEST_F(ObjectTest, Nil_is_accepted_wherever_counts_change) {
    RuntimeLockObject(nullptr);
    RuntimeUnlockObject(nullptr);
    RuntimeLockUnlockObjects(nullptr, nullptr);
    RuntimeLockString(nullptr);
    RuntimeUnlockString(nullptr);
    RuntimeLockUnlockStrings(nullptr, nullptr);
}

TEST_F(ObjectTest, Nil_and_interfaces_have_no_instances) {
    EXPECT_EQ(class_raised_by([] { RuntimeNewObject(nullptr); }), "NilObjectException");
    ClassRecord* const interface = new_class("Speaker", nullptr, 0);
    interface->is_interface = 1;
    EXPECT_EQ(class_raised_by([&] { RuntimeNewObject(interface); }), "IllegalCastException");
}

TEST_F(ObjectTest, A_reference_assigned_to_itself_keeps_its_object) {
    Ref<Probe> probe = make_probe(1);
    const Ref<Probe>& same = probe;
    probe = same;
    EXPECT_EQ(probe->count, 1);
    probe = Ref<Probe>(probe);
    EXPECT_EQ(probe->count, 1);
    RuntimeLockUnlockObjects(probe.object(), probe.object());
    EXPECT_EQ(probe->count, 1);
}

template <char Class>
void note_init(Object*) {
    journal().push_back(std::string("init ") + Class);
}
template <char Class>
void note_destructor(Object*) {
    journal().push_back(std::string("destroy ") + Class);
}
template <char Class>
void note_exit(Object*) {
    journal().push_back(std::string("exit ") + Class);
}

template <char Class>
ClassRecord* new_noting_class(ClassRecord* parent) {
    ClassRecord* const record = new_class(std::string(1, Class), parent, sizeof(Object));
    record->init = note_init<Class>;
    record->destructor = note_destructor<Class>;
    record->exit = note_exit<Class>;
    return record;
}

TEST_F(ObjectTest, Inits_run_parent_first_then_destructors_and_then_exits_innermost_first) {
    ClassRecord* const inner = new_noting_class<'C'>(new_noting_class<'B'>(new_noting_class<'A'>(nullptr)));
    RuntimeNewObject(inner);
    EXPECT_EQ(journal(), (Journal{"init A", "init B", "init C", "destroy C", "destroy B", "destroy A", "exit C",
                                  "exit B", "exit A"}));
}

TEST_F(ObjectTest, An_init_that_raises_leaves_no_object) {
    ClassRecord* const record = new_class("Unborn", nullptr, sizeof(Object));
    record->init = [](Object*) { raise<RuntimeException>("not today"); };
    record->exit = note_exit<'U'>;
    EXPECT_EQ(message_of(raised_by([&] { RuntimeNewObject(record); })), "not today");
    EXPECT_EQ(RuntimeLiveObjects(record), 0);
    EXPECT_EQ(journal(), Journal{"exit U"});
}

TEST_F(ObjectTest, The_end_of_one_object_ends_what_it_alone_held) {
    const Ref<Probe> shared = make_probe(3);
    {
        const Ref<Probe> outer = make_probe(1);
        outer->first = make_probe(2).release();
        outer->second = Ref<Probe>(shared).release();
    }
    EXPECT_EQ(journal(), (Journal{"destroy 1", "exit 1", "destroy 2", "exit 2"}));
    EXPECT_EQ(shared->count, 1);
}

TEST_F(ObjectTest, A_raise_in_a_destructor_reaches_the_caller_once_the_object_is_gone) {
    Ref<Probe> probe = make_probe(1);
    probe->in_destructor = [](Probe*) { raise<KeyNotFoundException>("in the destructor"); };
    const Ref<Object> raised = raised_by([&] { RuntimeUnlockObject(probe.release()); });
    EXPECT_EQ(message_of(raised), "in the destructor");
    EXPECT_EQ(journal(), (Journal{"destroy 1", "exit 1"}));
    EXPECT_EQ(raised->count, 1);
}

TEST_F(ObjectTest, A_raise_in_an_exit_lets_the_exits_of_the_parents_run) {
    ClassRecord* const inner = new_class("B", new_noting_class<'A'>(nullptr), sizeof(Object));
    inner->exit = [](Object*) { raise<KeyNotFoundException>(); };
    Object* const object = RuntimeNewObject(inner).release();
    EXPECT_EQ(class_raised_by([&] { RuntimeLockUnlockObjects(nullptr, object); }), "KeyNotFoundException");
    EXPECT_EQ(journal().back(), "exit A");
}

TEST_F(ObjectTest, Of_two_raises_in_one_release_the_first_is_raised_and_the_second_told) {
    const RecordingFront front;
    Ref<Probe> probe = make_probe(1);
    probe->in_destructor = [](Probe*) { raise<RuntimeException>("first"); };
    probe->in_exit = [](Probe*) { raise<RuntimeException>("second"); };
    EXPECT_EQ(message_of(raised_by([&] { RuntimeUnlockObject(probe.release()); })), "first");
    EXPECT_EQ(front.messages, std::vector<std::string>{"second"});
}

Ref<Object>& saved() {
    static Ref<Object> object;
    return object;
}
void save(Probe* probe) { saved() = Ref<Object>(probe); }

TEST_F(ObjectTest, An_object_that_its_destructor_saves_lives_on_whole) {
    Ref<Probe> probe = make_probe(1);
    probe->first = make_probe(2).release();
    probe->in_destructor = save;
    probe = nullptr;
    EXPECT_EQ(journal(), Journal{"destroy 1"});
    ASSERT_EQ(saved()->count, 1);
    EXPECT_NE(static_cast<Probe*>(saved().object())->first, nullptr);

    static_cast<Probe*>(saved().object())->in_destructor = nullptr;
    saved() = nullptr;
    EXPECT_EQ(journal(), (Journal{"destroy 1", "destroy 1", "exit 1", "destroy 2", "exit 2"}));
}

TEST_F(ObjectTest, An_object_that_its_exit_saves_stays_valid_memory) {
    Ref<Probe> probe = make_probe(1);
    probe->in_exit = save;
    probe = nullptr;
    ASSERT_EQ(saved()->count, 1);
    EXPECT_EQ(static_cast<Probe*>(saved().object())->number, 1);
    static_cast<Probe*>(saved().object())->in_exit = nullptr;
    saved() = nullptr;
}

struct Link : Object {
    Object* next;
};

ClassRecord* link_class() {
    static ClassRecord* const record = [] {
        ClassRecord* const made = new_class("Link", nullptr, sizeof(Link));
        made->exit = [](Object* link) { unlock(std::exchange(static_cast<Link*>(link)->next, nullptr)); };
        return made;
    }();
    return record;
}

TEST_F(ObjectTest, A_chain_of_any_length_is_released_on_a_small_stack) {
    constexpr int kLinks = kIsSanitized ? 1'000'000 : 10'000'000;
    Ref<Object> chain;
    for (int i = 0; i < kLinks; ++i) {
        Object* const link = RuntimeNewObject(link_class()).release();
        static_cast<Link*>(link)->next = chain.release();
        chain = Ref<Object>::adopt(link);
    }
    ASSERT_EQ(RuntimeLiveObjects(link_class()), kLinks);
    run_on_stack_of(128 * 1024, [&] { chain = nullptr; });
    EXPECT_EQ(RuntimeLiveObjects(link_class()), 0);
}

TEST_F(ObjectTest, A_raise_from_deep_inside_a_structure_reaches_who_released_it) {
    Ref<Probe> chain = make_probe(100);
    chain->in_destructor = [](Probe*) { raise<RuntimeException>("at the bottom"); };
    for (std::int32_t number = 99; number > 0; --number) {
        Ref<Probe> outer = make_probe(number);
        outer->first = chain.release();
        chain = outer;
    }
    EXPECT_EQ(message_of(raised_by([&] { RuntimeUnlockObject(chain.release()); })), "at the bottom");
    EXPECT_EQ(journal().size(), 200U);
}

struct Watched final : NativeState {
    explicit Watched(bool& ended) : ended_(ended) {}
    ~Watched() override { ended_ = true; }
    bool& ended_;
};

TEST_F(ObjectTest, What_the_toolkit_keeps_with_an_object_ends_with_it) {
    bool ended = false;
    Ref<Probe> probe = make_probe(1);
    probe->native = new Watched(ended);
    probe = nullptr;
    EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace tavrik::test
