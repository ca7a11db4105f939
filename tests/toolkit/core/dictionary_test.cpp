#include "data/dictionary.h"

#include "tests/support/balance.h"
#include "tests/support/probe.h"
#include "tests/support/raised.h"
#include "toolkit/core/variant.h"

#include <algorithm>
#include <random>
#include <vector>

namespace tavrik::test {
namespace {

Ref<Variant> text_key(std::string_view text) { return StringToVariant(String(text)); }

// Keys of every kind, told apart by number. Text and Boolean keys are boxed anew each time.
class Keys {
public:
    static constexpr std::size_t kCount = 60;

    Ref<Variant> key(std::size_t number) const {
        if (number == 0) return nullptr;
        if (number <= 2) return BooleanToVariant(number == 2);
        if (number <= 10) return objects_[number - 3];
        return text_key(number == 11 ? "" : std::string(number - 10, 'k') + std::to_string(number % 3));
    }
    std::size_t number_of(const Ref<Variant>& key) const {
        std::size_t number = 0;
        while (number < kCount && !core::equal_values(key.object(), this->key(number).object())) ++number;
        return number;
    }

private:
    std::vector<Ref<Object>> objects_ = [] {
        std::vector<Ref<Object>> objects;
        for (std::int32_t number = 0; number < 8; ++number) objects.emplace_back(make_probe(number));
        return objects;
    }();
};

// The reference: entries in the order of their first storing.
class Model {
public:
    struct Entry {
        std::size_t key;
        Object* value;
    };

    std::vector<Entry>::iterator find(std::size_t key) { return std::ranges::find(entries, key, &Entry::key); }
    void set(std::size_t key, Object* value) {
        const auto entry = find(key);
        if (entry == entries.end()) return entries.push_back({key, value});
        entry->value = value;
    }

    std::vector<Entry> entries;
};

TEST(Dictionary, Agrees_with_a_plain_reference_over_random_operations) {
    const Balance balance;
    const Keys keys;
    const Ref<Object> values[] = {nullptr, make_probe(100), make_probe(101), make_probe(102)};
    std::mt19937 random{11};
    const auto up_to = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };

    const Ref<Dictionary> dictionary = make<Dictionary>();
    Model model;
    for (int round = 0; round < 20'000; ++round) {
        // The number of keys in play swells and shrinks, so that the table does.
        const std::size_t number = up_to(round / 2000 % 2 == 0 ? Keys::kCount - 1 : 4);
        const Ref<Variant> key = keys.key(number);
        const auto entry = model.find(number);
        const bool is_there = entry != model.entries.end();
        switch (up_to(7)) {
            case 0:
            case 1:
            case 2: {
                const Ref<Object>& value = values[up_to(3)];
                dictionary->set_Value(key, value);
                model.set(number, value.object());
                break;
            }
            case 3:
            case 4:
                ASSERT_EQ(class_raised_by([&] { dictionary->Remove(key); }),
                          is_there ? "nothing" : "KeyNotFoundException");
                if (is_there) model.entries.erase(entry);
                break;
            case 5:
                ASSERT_EQ(dictionary->HasKey(key), is_there);
                ASSERT_EQ(dictionary->Lookup(key, values[1]).object(), is_there ? entry->value : values[1].object());
                break;
            case 6: {
                if (model.entries.empty()) break;
                const std::size_t at = up_to(model.entries.size() - 1);
                ASSERT_EQ(keys.number_of(dictionary->Key(static_cast<std::int32_t>(at))), model.entries[at].key);
                break;
            }
            default:
                if (up_to(300) > 0) break;
                dictionary->Clear();
                model.entries.clear();
        }
        ASSERT_EQ(dictionary->Count(), static_cast<std::int32_t>(model.entries.size()));
        if (round % 100 != 0) continue;
        const auto all_keys = dictionary->Keys();
        const auto all_values = dictionary->Values();
        ASSERT_EQ(all_keys->upper_bound(), dictionary->Count() - 1);
        ASSERT_EQ(all_values->upper_bound(), dictionary->Count() - 1);
        for (std::int32_t i = 0; i < dictionary->Count(); ++i) {
            ASSERT_EQ(keys.number_of(all_keys->at(i)), model.entries[static_cast<std::size_t>(i)].key);
            ASSERT_EQ(all_values->at(i).object(), model.entries[static_cast<std::size_t>(i)].value);
        }
    }
}

TEST(Dictionary, A_missing_key_raises_and_a_text_key_is_named) {
    const Balance balance;
    const Ref<Dictionary> dictionary = make<Dictionary>();
    const Ref<Object> raised = raised_by([&] { dictionary->Value(text_key("FileQuit")); });
    EXPECT_EQ(class_of(raised), "KeyNotFoundException");
    EXPECT_EQ(message_of(raised), "the dictionary has no such key: FileQuit");
    EXPECT_EQ(class_raised_by([&] { dictionary->Value(nullptr); }), "KeyNotFoundException");
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
