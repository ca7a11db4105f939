#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"

#include <tavrik/array.h>

#include <limits>
#include <random>
#include <vector>

namespace tavrik::test {
namespace {

// What a test holds an element as, and some values that differ, the borders of the type among them.
template <class T>
struct Sample {
    using Value = T;
    static std::vector<T> values() {
        using Limits = std::numeric_limits<T>;
        return {T{}, Limits::lowest(), Limits::max(), T{1}};
    }
};
template <>
struct Sample<bool> {
    using Value = bool;
    static std::vector<bool> values() { return {false, true}; }
};
template <>
struct Sample<String> {
    using Value = String;
    static std::vector<String> values() { return {nullptr, String("map"), String("bsp"), "literal"_s}; }
};
template <>
struct Sample<Object> {
    using Value = Ref<Object>;
    static std::vector<Ref<Object>> values() { return {nullptr, make_probe(1), make_probe(2), make_probe(3)}; }
};

template <class T>
class ArrayOfKind : public testing::Test {};

using Kinds = testing::Types<std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, std::int32_t, std::uint32_t,
                             std::int64_t, std::uint64_t, float, double, bool, String, Object>;
TYPED_TEST_SUITE(ArrayOfKind, Kinds);

TYPED_TEST(ArrayOfKind, Agrees_with_a_vector_over_random_operations) {
    using Value = typename Sample<TypeParam>::Value;
    const Balance balance;
    const auto samples = Sample<TypeParam>::values();
    std::mt19937 random{7};
    const auto up_to = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };

    auto array = ArrayOf<TypeParam>::make();
    std::vector<Value> model;
    for (int round = 0; round < 3000; ++round) {
        const Value value = samples[up_to(samples.size() - 1)];
        const std::size_t place = up_to(model.size());
        const auto index = static_cast<std::int32_t>(place);
        const auto at = model.begin() + index;
        switch (up_to(5)) {
            case 0:
                array->insert(index, value);
                model.insert(at, value);
                break;
            case 1:
                array->append(value);
                model.push_back(value);
                break;
            case 2:
                if (at == model.end()) break;
                array->set(index, value);
                *at = value;
                break;
            case 3:
                if (at == model.end()) break;
                array->remove(index);
                model.erase(at);
                break;
            case 4: {
                const auto found = std::find(at, model.end(), value);
                const auto wanted = found == model.end() ? -1 : static_cast<std::int32_t>(found - model.begin());
                ASSERT_EQ(array->index_of(value, index == 0 ? -3 : index), wanted);
                break;
            }
            default:
                if (up_to(9) > 0) break;
                model.resize(up_to(40), Value{});
                array->resize(static_cast<std::int32_t>(model.size()) - 1);
        }
        ASSERT_EQ(array->upper_bound(), static_cast<std::int32_t>(model.size()) - 1);
        for (std::size_t i = 0; i < model.size(); ++i) {
            ASSERT_TRUE(array->at(static_cast<std::int32_t>(i)) == model[i]) << i;
        }
    }
}

TEST(Array, An_index_outside_raises_and_changes_nothing) {
    const Balance balance;
    const auto array = ArrayOf<std::int32_t>::make(2);
    const auto raised = [&](auto use) { return class_raised_by([&] { use(*array.get()); }); };
    for (const std::int32_t index : {-1, 3, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(raised([&](auto& a) { a.at(index); }), "OutOfBoundsException") << index;
        EXPECT_EQ(raised([&](auto& a) { a.set(index, 1); }), "OutOfBoundsException") << index;
        EXPECT_EQ(raised([&](auto& a) { a.remove(index); }), "OutOfBoundsException") << index;
    }
    for (const std::int32_t index : {-1, 4, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(raised([&](auto& a) { a.insert(index, 1); }), "OutOfBoundsException") << index;
    }
    EXPECT_EQ(raised([](auto& a) { a.resize(-2); }), "OutOfBoundsException");
    EXPECT_EQ(array->upper_bound(), 2);
}

std::int32_t bound_of(const Ref<Array>& array, std::int32_t dimension) {
    return reinterpret_cast<ArrayTable<Object>::UpperBound>(array->operations->upper_bound)(array.get(), dimension);
}
void resize(const Ref<Array>& array, std::int32_t bound) {
    reinterpret_cast<ArrayTable<Object>::Resize>(array->operations->resize)(array.get(), bound);
}

TEST(Array, Every_dimension_goes_up_to_the_one_bound) {
    const Balance balance;
    const Ref<Array> cube = CreateArray(3, kReferenceWidth, 2);
    const auto elements = static_ref<ArrayOf<Object>>(cube);
    for (const std::int32_t dimension : {1, 2, 3}) EXPECT_EQ(bound_of(cube, dimension), 2);
    for (const std::int32_t dimension : {-1, 0, 4}) {
        EXPECT_EQ(class_raised_by([&] { bound_of(cube, dimension); }), "OutOfBoundsException") << dimension;
    }
    EXPECT_FALSE(elements->at(26));
    EXPECT_EQ(class_raised_by([&] { elements->at(27); }), "OutOfBoundsException");

    resize(cube, 3);
    elements->set(63, make_probe(1));
    EXPECT_EQ(bound_of(cube, 3), 3);
    EXPECT_EQ(class_raised_by([&] { elements->at(64); }), "OutOfBoundsException");
    resize(cube, -1);
    EXPECT_EQ(class_raised_by([&] { elements->at(0); }), "OutOfBoundsException");
}

TEST(Array, Bounds_that_make_no_array_raise) {
    const Balance balance;
    EXPECT_EQ(class_raised_by([] { CreateArray(1, 4, -2); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([] { CreateArray(0, 4, 1); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([] { CreateArray(1, 3, 1); }), "UnsupportedFormatException");
    EXPECT_EQ(class_raised_by([] { CreateArray(2, kReferenceWidth, INT32_MAX); }), "OutOfMemoryException");
    EXPECT_EQ(class_raised_by([] { CreateArray(3, 1, INT32_MAX); }), "OutOfMemoryException");
}

TEST(Array, A_growth_that_fails_leaves_the_array_as_it_was) {
    const Balance balance;
    for (const std::int32_t dimensions : {2, 3}) {
        const Ref<Array> array = CreateArray(dimensions, kReferenceWidth, 1);
        static_ref<ArrayOf<Object>>(array)->set(3, make_probe(1));
        EXPECT_EQ(class_raised_by([&] { resize(array, INT32_MAX); }), "OutOfMemoryException") << dimensions;
        EXPECT_EQ(bound_of(array, dimensions), 1) << dimensions;
        EXPECT_TRUE(static_ref<ArrayOf<Object>>(array)->at(3)) << dimensions;
    }
}

TEST(Array, May_hold_itself) {
    const Balance balance;
    const auto array = ArrayOf<Object>::make();
    array->append(array);
    array->insert(0, array->at(0));
    EXPECT_EQ(array->count, 3);
    array->resize(-1);
    EXPECT_EQ(array->count, 1);
}

// The array that the end of a probe changes.
ArrayOf<Object>* changed = nullptr;

class ReentrantArray : public testing::Test {
protected:
    ReentrantArray() {
        changed = array_.get();
        for (std::int32_t number = 0; number < 4; ++number) {
            const Ref<Probe> probe = make_probe(number);
            probe->in_destructor = [](Probe*) {
                changed->append(make_probe(9));
                if (changed->upper_bound() > 5) changed->remove(0);
            };
            array_->append(probe);
        }
    }
    ~ReentrantArray() override { array_->resize(-1); }

    Balance balance_;
    Ref<ArrayOf<Object>> array_ = ArrayOf<Object>::make();
};

TEST_F(ReentrantArray, Stays_whole_when_an_overwritten_element_changes_it) {
    array_->set(1, nullptr);
    EXPECT_EQ(array_->upper_bound(), 4);
    EXPECT_FALSE(array_->at(1));
}

TEST_F(ReentrantArray, Stays_whole_when_a_removed_element_changes_it) {
    array_->remove(0);
    EXPECT_EQ(array_->upper_bound(), 3);
    EXPECT_EQ(static_cast<Probe*>(array_->at(3).object())->number, 9);
}

TEST_F(ReentrantArray, Stays_whole_when_elements_cut_off_change_it) {
    array_->resize(0);
    EXPECT_EQ(array_->upper_bound(), 3);
    EXPECT_EQ(static_cast<Probe*>(array_->at(0).object())->number, 0);
}

}  // namespace
}  // namespace tavrik::test
