#include "runtime/class.h"
#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"

namespace tavrik::test {

struct Crate : Class<Crate> {
    static const ClassDefinition& definition();

    Field<Probe> first;
    StringField label;
    Field<Probe> second;
    std::int32_t weight;
    Field<ArrayOf<Probe>> contents;
    Field<Probe> mStored;
};

namespace {

constexpr FieldRow kCrateFields[] = {field<&Crate::second>("second"), field<&Crate::label>("label"),
                                     field<&Crate::weight>("weight"), field<&Crate::first>("first"),
                                     field<&Crate::contents>("contents")};
constexpr PropertyRow kCrateProperties[] = {stored<&Crate::mStored>("Stored")};

}  // namespace

const ClassDefinition& Crate::definition() {
    static constexpr ClassDefinition kDefinition =
        define<Crate>({.fields = kCrateFields, .properties = kCrateProperties});
    return kDefinition;
}

namespace {

class Fields : public testing::Test {
protected:
    void SetUp() override { journal().clear(); }

    Balance balance_;
};

TEST_F(Fields, Of_a_new_object_are_nil_and_arrays_are_empty) {
    const Ref<Crate> crate = make<Crate>();
    EXPECT_FALSE(crate->first);
    EXPECT_EQ(crate->contents->upper_bound(), -1);
    EXPECT_NE(crate->contents.object(), make<Crate>()->contents.object());
    EXPECT_EQ(class_raised_by([&] { ++crate->first->number; }), "NilObjectException");
}

TEST_F(Fields, Hold_one_count_whatever_they_are_given) {
    const Ref<Crate> crate = make<Crate>();
    crate->first = make_probe(1);
    crate->first = crate->first;
    EXPECT_EQ(journal(), Journal{});
    const Ref<Probe> probe = crate->first;
    crate->second = crate->first;
    crate->mStored = Arg<Probe>(probe);
    EXPECT_EQ(probe->count, 4);
    crate->second = nullptr;
    EXPECT_EQ(probe->count, 3);
}

TEST_F(Fields, Keep_their_object_for_the_expression_that_uses_it) {
    const Ref<Crate> crate = make<Crate>();
    crate->first = make_probe(1);
    const auto number_after_reset = [&](Probe& probe) {
        crate->first = nullptr;
        return probe.number;
    };
    EXPECT_EQ(number_after_reset(*crate->first.operator->().get()), 1);
    EXPECT_EQ(journal(), (Journal{"destroy 1", "exit 1"}));
}

TEST_F(Fields, End_with_their_object_in_the_order_of_the_rows) {
    Ref<Crate> crate = make<Crate>();
    crate->first = make_probe(1);
    crate->second = make_probe(2);
    crate->contents->append(make_probe(3));
    crate->mStored = make_probe(4);
    crate->label = String("fragile");
    const String label = crate->label;
    crate = nullptr;
    EXPECT_EQ(journal(),
              (Journal{"destroy 2", "exit 2", "destroy 1", "exit 1", "destroy 3", "exit 3", "destroy 4", "exit 4"}));
    EXPECT_EQ(label.record()->count, 1);
}

TEST_F(Fields, Are_read_and_written_through_their_records) {
    const Ref<Crate> crate = make<Crate>();
    const Ref<Probe> probe = make_probe(1);
    const PropertyRecord& first = crate->record->properties[3];
    reinterpret_cast<void (*)(Object*, std::int32_t, Object*)>(first.setter)(crate.object(), first.parameter,
                                                                             probe.object());
    EXPECT_EQ(crate->first.object(), probe.object());
    EXPECT_EQ(view(first.type_code), "o<test.Probe>");
    const auto read = reinterpret_cast<Ref<Object> (*)(Object*, std::int32_t)>(first.getter);
    EXPECT_EQ(read(crate.object(), first.parameter), probe);
    EXPECT_EQ(probe->count, 2);
}

}  // namespace
}  // namespace tavrik::test
