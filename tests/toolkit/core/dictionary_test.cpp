#include "data/dictionary.h"

#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "toolkit/core/value_keys.h"

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <vector>

namespace tavrik::test {
namespace {

Ref<Variant> text_key(std::string_view text) { return StringToVariant(String(text)); }

// Keys of every kind, told apart by number. Each has two forms: equal values in other objects, where there are such.
class Keys {
public:
    static constexpr std::size_t kCount = 500;

    Keys() {
        for (std::size_t number = 0; number < kCount; ++number) {
            for (auto& forms : forms_) forms.push_back(make_key(number, &forms == &forms_[1]));
            if (number % 5 == 0) forms_[1].back() = forms_[0].back();
        }
    }

    const Ref<Variant>& key(std::size_t number, std::size_t form) const { return forms_[form][number]; }
    bool is(std::size_t number, const Ref<Variant>& key) const {
        return core::equal_values(key.object(), forms_[0][number].object());
    }

private:
    static Ref<Variant> make_key(std::size_t number, bool other_form) {
        const auto integer = static_cast<std::int32_t>(number);
        switch (number % 5) {
            case 0:
                return number == 0 ? nullptr : Ref<Variant>(make_probe(integer));
            case 1:
                return text_key(std::to_string(number));
            case 2:
                return text_key(std::string(20, 'k') + std::to_string(number));
            case 3:
                return other_form ? DoubleToVariant(integer) : Int32ToVariant(integer);
            default:
                return other_form ? CurrencyToVariant({integer * 5'000}) : DoubleToVariant(integer / 2.0);
        }
    }

    std::array<std::vector<Ref<Variant>>, 2> forms_;
};

// The reference: what is under each key, and the keys in the order of their first storing.
struct Model {
    void set(std::size_t key, Object* value) {
        if (values.insert_or_assign(key, value).second) order.push_back(key);
    }
    void remove(std::size_t key) {
        if (values.erase(key) != 0) order.erase(std::ranges::find(order, key));
    }

    std::map<std::size_t, Object*> values;
    std::vector<std::size_t> order;
};

void expect_same(const Ref<Dictionary>& dictionary, const Model& model, const Keys& keys) {
    const auto all_keys = dictionary->Keys();
    const auto all_values = dictionary->Values();
    ASSERT_EQ(all_keys->upper_bound(), dictionary->Count() - 1);
    ASSERT_EQ(all_values->upper_bound(), dictionary->Count() - 1);
    for (std::int32_t i = 0; i < dictionary->Count(); ++i) {
        const std::size_t number = model.order[static_cast<std::size_t>(i)];
        ASSERT_TRUE(keys.is(number, all_keys->at(i)));
        ASSERT_EQ(all_keys->at(i), dictionary->Key(i));
        ASSERT_EQ(all_values->at(i).object(), model.values.at(number));
    }
}

TEST(Dictionary, Agrees_with_a_plain_reference_over_a_million_random_operations) {
    const Balance balance;
    const Keys keys;
    const Ref<Object> values[] = {nullptr, make_probe(1), make_probe(2), make_probe(3)};
    std::mt19937 random{11};
    const auto below = [&](std::size_t end) { return random() % end; };

    const Ref<Dictionary> dictionary = make<Dictionary>();
    Model model;
    for (int round = 0; round < 1'000'000; ++round) {
        // Storing and removing prevail in turn, so that the table swells and shrinks.
        const std::size_t stores = round / 5'000 % 2 == 0 ? 4 : 1;
        const std::size_t number = below(Keys::kCount);
        const Ref<Variant>& key = keys.key(number, below(2));
        const auto entry = model.values.find(number);
        const bool is_there = entry != model.values.end();
        const std::size_t chance = below(8);
        if (chance < stores) {
            const Ref<Object>& value = values[below(4)];
            dictionary->set_Value(key, value);
            model.set(number, value.object());
        } else if (chance < 5 && is_there) {
            dictionary->Remove(key);
            model.remove(number);
        } else if (chance == 5) {
            ASSERT_EQ(dictionary->HasKey(key), is_there);
        } else if (chance == 6) {
            ASSERT_EQ(dictionary->Lookup(key, values[1]).object(), is_there ? entry->second : values[1].object());
        } else if (!model.order.empty()) {
            const std::size_t at = below(model.order.size());
            ASSERT_TRUE(keys.is(model.order[at], dictionary->Key(static_cast<std::int32_t>(at))));
        }
        ASSERT_EQ(dictionary->Count(), static_cast<std::int32_t>(model.order.size()));
        if (round % 10'000 != 0) continue;
        expect_same(dictionary, model, keys);
        dictionary->set_BinCount(static_cast<std::int32_t>(below(3'000)));
        if (below(20) != 0) continue;
        dictionary->Clear();
        model = {};
    }
}

// With time for each position or removal that grows with the entries this would take minutes.
TEST(Dictionary, Finds_positions_between_removals_quickly) {
    const Balance balance;
    const Ref<Dictionary> dictionary = make<Dictionary>();
    constexpr std::int32_t kCount = 200'000;
    for (std::int32_t number = 0; number < kCount; ++number) dictionary->set_Value(Int32ToVariant(number), nullptr);
    for (std::int32_t number = 0; number < kCount / 4; ++number) {
        ASSERT_EQ(VariantToInt32(dictionary->Key(0).object()), number);
        dictionary->Remove(dictionary->Key(0));
    }
    while (dictionary->Count() > 1) {
        const std::int32_t middle = dictionary->Count() / 2;
        const Ref<Variant> key = dictionary->Key(middle);
        ASSERT_LT(VariantToInt32(dictionary->Key(middle - 1).object()), VariantToInt32(key.object()));
        dictionary->Remove(key);
    }
    EXPECT_EQ(VariantToInt32(dictionary->Key(0).object()), kCount / 4);
}

TEST(Dictionary, Tells_and_takes_its_number_of_bins) {
    const Balance balance;
    const Ref<Dictionary> dictionary = make<Dictionary>();
    const std::int32_t fewest = dictionary->BinCount();
    EXPECT_EQ(fewest, 8);
    struct Case {
        std::int32_t asked, entries, told;
    };
    for (const Case& c : {Case{100, 0, 128},
                          {1024, 0, 1024},
                          {0, 0, fewest},
                          {-5, 0, fewest},
                          {1, 6, fewest},
                          {1, 7, 16},
                          {64, 26, 64},
                          {INT32_MIN, 27, 64}}) {
        while (dictionary->Count() < c.entries) dictionary->set_Value(Int32ToVariant(dictionary->Count()), nullptr);
        dictionary->set_BinCount(c.asked);
        EXPECT_EQ(dictionary->BinCount(), c.told) << c.asked << " for " << c.entries;
    }
    EXPECT_EQ(class_raised_by([&] { dictionary->set_BinCount(INT32_MAX); }), "OutOfMemoryException");
    EXPECT_EQ(dictionary->BinCount(), 64);
    for (std::int32_t i = 0; i < 27; ++i) EXPECT_EQ(VariantToInt32(dictionary->Key(i).object()), i);
    dictionary->Clear();
    EXPECT_EQ(dictionary->BinCount(), fewest);
}

TEST(Dictionary, Can_be_changed_in_a_walk_over_a_snapshot) {
    const Balance balance;
    const Ref<Dictionary> dictionary = make<Dictionary>();
    for (std::int32_t number = 0; number < 100; ++number) dictionary->set_Value(Int32ToVariant(number), nullptr);
    const auto keys = dictionary->Keys();
    for (std::int32_t i = 0; i <= keys->upper_bound(); ++i) {
        dictionary->Remove(keys->at(i));
        dictionary->set_Value(Int32ToVariant(1'000 + i), keys->at(i));
    }
    EXPECT_EQ(dictionary->Count(), 100);
    EXPECT_EQ(VariantToInt32(dictionary->Key(99).object()), 1'099);
}

TEST(Dictionary, A_missing_key_raises_and_a_text_key_is_named) {
    const Balance balance;
    const Ref<Dictionary> dictionary = make<Dictionary>();
    const Ref<Object> raised = raised_by([&] { dictionary->Value(text_key("FileQuit")); });
    EXPECT_EQ(class_of(raised), "KeyNotFoundException");
    EXPECT_EQ(message_of(raised), "the dictionary has no such key: FileQuit");
    EXPECT_EQ(class_raised_by([&] { dictionary->Value(nullptr); }), "KeyNotFoundException");
    EXPECT_EQ(class_raised_by([&] { dictionary->Remove(text_key("FileQuit")); }), "KeyNotFoundException");
}

TEST(Dictionary, A_position_outside_raises) {
    const Balance balance;
    const Ref<Dictionary> dictionary = make<Dictionary>();
    dictionary->set_Value(text_key("one"), nullptr);
    for (const std::int32_t position : {-1, 1, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(class_raised_by([&] { dictionary->Key(position); }), "OutOfBoundsException") << position;
    }
}

// The dictionary that the end of a value changes.
Dictionary* changed = nullptr;

class ReentrantDictionary : public testing::Test {
protected:
    ReentrantDictionary() {
        changed = dictionary_.get();
        for (std::int32_t number = 0; number < 6; ++number) {
            const Ref<Probe> value = make_probe(number);
            value->in_destructor = [](Probe* probe) {
                // Enough to make the table move.
                for (int i = 0; i < 20; ++i) changed->set_Value(text_key("new" + std::to_string(i)), nullptr);
                const auto next = text_key(std::to_string(probe->number + 1));
                if (changed->HasKey(next)) changed->Remove(next);
            };
            dictionary_->set_Value(text_key(std::to_string(number)), value);
        }
    }

    Balance balance_;
    Ref<Dictionary> dictionary_ = make<Dictionary>();
};

TEST_F(ReentrantDictionary, Stays_whole_when_an_overwritten_value_changes_it) {
    dictionary_->set_Value(text_key("3"), text_key("valley"));
    EXPECT_EQ(VariantToString(dictionary_->Value(text_key("3")).object()), "valley");
    EXPECT_EQ(dictionary_->Count(), 4 + 20);
    dictionary_->Clear();
}

TEST_F(ReentrantDictionary, Stays_whole_when_a_removed_value_changes_it) {
    dictionary_->Remove(text_key("0"));
    EXPECT_EQ(dictionary_->Count(), 20);
    EXPECT_EQ(VariantToString(dictionary_->Key(0).object()), "new0");
}

TEST_F(ReentrantDictionary, Stays_whole_when_cleared_values_change_it) {
    dictionary_->Clear();
    EXPECT_EQ(dictionary_->Count(), 20);
}

TEST_F(ReentrantDictionary, Ends_whole_when_its_values_change_it) {
    dictionary_ = nullptr;
    EXPECT_EQ(RuntimeLiveObjects(Dictionary::__Lookup()), 0);
}

}  // namespace
}  // namespace tavrik::test
