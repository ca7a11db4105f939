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
using Value = std::conditional_t<std::is_same_v<T, Object>, Ref<Object>, T>;

template <class T>
std::vector<Value<T>> samples_of() {
    if constexpr (std::is_same_v<T, Object>) {
        return {nullptr, make_probe(1), make_probe(2), make_probe(3)};
    } else if constexpr (std::is_same_v<T, String>) {
        return {nullptr, String("map"), String("bsp"), "literal"_s};
    } else {
        return {T{}, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max(), T{1}};
    }
}

template <class T>
class ArrayOfKind : public testing::Test {};

using Kinds = testing::Types<std::int8_t, std::uint8_t, std::int16_t, std::uint16_t, std::int32_t, std::uint32_t,
                             std::int64_t, std::uint64_t, float, double, bool, String, Object>;
TYPED_TEST_SUITE(ArrayOfKind, Kinds);

TYPED_TEST(ArrayOfKind, Agrees_with_a_vector_over_random_operations) {
    const Balance balance;
    const auto samples = samples_of<TypeParam>();
    std::mt19937 random{7};
    const auto up_to = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };

    auto array = ArrayOf<TypeParam>::make();
    std::vector<Value<TypeParam>> model;
    for (int round = 0; round < 3000; ++round) {
        const Value<TypeParam> value = samples[up_to(samples.size() - 1)];
        const std::size_t place = up_to(model.size());
        const auto index = static_cast<std::int32_t>(place);
        const auto at = model.begin() + index;
        const std::size_t what = up_to(9);
        if (what < 4) {
            array->insert(index, value);
            model.insert(at, value);
        } else if (what == 4) {
            array->append(value);
            model.push_back(value);
        } else if (what < 7 && at != model.end()) {
            array->set(index, value);
            *at = value;
        } else if (what < 9 && at != model.end()) {
            array->remove(index);
            model.erase(at);
        } else if (up_to(9) == 0) {
            model.resize(up_to(40), Value<TypeParam>{});
            array->resize(static_cast<std::int32_t>(model.size()) - 1);
        }
        const auto found = std::find(model.begin(), model.end(), value);
        const auto wanted = found == model.end() ? -1 : static_cast<std::int32_t>(found - model.begin());
        ASSERT_EQ(array->index_of(value, -3), wanted);
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
    for (const std::int32_t index : {-1, 4}) {
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
    resize(cube, 3);
    elements->set(63, make_probe(1));
    EXPECT_EQ(class_raised_by([&] { elements->at(64); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([&] { resize(cube, INT32_MAX); }), "OutOfMemoryException");
    EXPECT_EQ(bound_of(cube, 3), 3);
    EXPECT_TRUE(elements->at(63));
}

TEST(Array, Bounds_that_make_no_array_raise) {
    EXPECT_EQ(class_raised_by([] { CreateArray(1, 4, -2); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([] { CreateArray(0, 4, 1); }), "OutOfBoundsException");
    EXPECT_EQ(class_raised_by([] { CreateArray(1, 3, 1); }), "UnsupportedFormatException");
    EXPECT_EQ(class_raised_by([] { CreateArray(2, kReferenceWidth, INT32_MAX); }), "OutOfMemoryException");
}

// The array that the end of a probe changes.
ArrayOf<Object>* changed = nullptr;

TEST(Array, Stays_whole_when_an_element_that_it_lets_go_changes_it) {
    const std::pair<void (*)(ArrayOf<Object>&), std::int32_t> cases[] = {
        {[](auto& array) { array.set(1, nullptr); }, 4},
        {[](auto& array) { array.remove(0); }, 3},
        {[](auto& array) { array.resize(0); }, 3},
    };
    for (const auto& [let_go, bound] : cases) {
        const Balance balance;
        const auto array = ArrayOf<Object>::make();
        changed = array.get();
        for (std::int32_t number = 0; number < 4; ++number) {
            array->append(make_probe(number));
            static_cast<Probe*>(array->at(number).object())->in_destructor = [](Probe*) {
                changed->append(make_probe(9));
                if (changed->upper_bound() > 5) changed->remove(0);
            };
        }
        let_go(*array.get());
        EXPECT_EQ(array->upper_bound(), bound);
        array->resize(-1);
    }
}

}  // namespace
}  // namespace tavrik::test
