// What the class adds to the toolkit's table: the constructor of pairs.
#include "data/dictionary.h"

#include "tests/support/balance.h"
#include "tests/support/raised.h"

#include <string>
#include <vector>

namespace tavrik::test {
namespace {

Ref<Variant> text(std::string_view bytes) { return StringToVariant(String(bytes)); }

Ref<Pair> pair_of(const Ref<Variant>& left, const Ref<Variant>& right) {
    Ref<Pair> pair = make<Pair>();
    pair->Constructor(left, right);
    return pair;
}

Ref<ArrayOf<Pair>> array_of(const std::vector<Ref<Pair>>& pairs) {
    auto array = ArrayOf<Pair>::make();
    for (const Ref<Pair>& pair : pairs) array->append(pair);
    return array;
}

TEST(Pair, Holds_what_it_was_given) {
    const Balance balance;
    const Ref<Variant> right = text("right");
    const Ref<Pair> pair = pair_of(nullptr, right);
    EXPECT_EQ(pair->Left(), nullptr);
    EXPECT_EQ(pair->Right(), right);
}

class DictionaryOfPairs : public testing::Test {
protected:
    std::string value(std::string_view key) {
        return std::string(VariantToString(dictionary_->Value(text(key)).object()).view());
    }

    Balance balance_;
    Ref<Dictionary> dictionary_ = make<Dictionary>();
};

TEST_F(DictionaryOfPairs, Has_the_last_value_of_a_key_that_stands_twice) {
    dictionary_->Constructor(
        array_of({pair_of(text("a"), text("1")), pair_of(text("b"), text("2")), pair_of(text("a"), text("3"))}));
    EXPECT_EQ(dictionary_->Count(), 2);
    EXPECT_EQ(value("a"), "3");
    EXPECT_EQ(value("b"), "2");
}

TEST_F(DictionaryOfPairs, Is_empty_without_pairs) {
    dictionary_->Constructor(nullptr);
    dictionary_->Constructor(array_of({}));
    EXPECT_EQ(dictionary_->Count(), 0);
}

TEST_F(DictionaryOfPairs, Keeps_what_came_before_a_nil_pair) {
    const auto pairs = array_of({pair_of(text("a"), text("1")), nullptr, pair_of(text("b"), text("2"))});
    EXPECT_EQ(class_raised_by([&] { dictionary_->Constructor(pairs); }), "NilObjectException");
    EXPECT_EQ(dictionary_->Count(), 1);
    EXPECT_EQ(value("a"), "1");
}

// Stores every value under the key "last", and cuts off the third of the pairs that it is built of.
struct Overriding : Class<Overriding, Dictionary> {
    static const ClassDefinition& definition();
    static inline ArrayOf<Pair>* pairs = nullptr;
};

void set_value(Overriding* self, Object*, Object* value) {
    dictionaryValueSetter(self, text("last").object(), value);
    Overriding::pairs->resize(1);  // up to the second
}
constexpr OperationRow kOperations[] = {overrides<Overriding, &Dictionary::set_Value, set_value>("=Value")};

const ClassDefinition& Overriding::definition() {
    static constexpr ClassDefinition kDefinition = define<Overriding>({.operations = kOperations});
    return kDefinition;
}

TEST_F(DictionaryOfPairs, Stores_through_the_operation_and_reads_the_bound_at_each_turn) {
    const auto pairs = array_of({pair_of(text("a"), text("1")), pair_of(text("b"), text("2")), nullptr});
    Overriding::pairs = pairs.get();
    dictionary_ = make<Overriding>();
    dictionary_->Constructor(pairs);
    EXPECT_EQ(dictionary_->Count(), 1);
    EXPECT_EQ(value("last"), "2");
}

}  // namespace
}  // namespace tavrik::test
