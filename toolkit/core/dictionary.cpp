#include "toolkit/core/variant.h"

#include <tavrik/dictionary.h>
#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <bit>
#include <new>
#include <string>
#include <vector>

namespace tavrik {
namespace {

// Entries lie dense, in the order in which they came; the bins hold their positions. A removed entry leaves a gap,
// which the next growth closes.
class HashTable final : public NativeState {
public:
    struct Entry {
        Ref<Object> key;
        Ref<Object> value;
        std::uint64_t hash = 0;
        bool used = false;
    };

    std::size_t count() const { return count_; }

    Entry* find(const Object* key) {
        if (count_ == 0) return nullptr;
        const std::uint64_t hash = core::hash_value(key);
        for (std::size_t bin = hash & mask();; bin = (bin + 1) & mask()) {
            const std::uint32_t at = bins_[bin];
            if (at == kEmpty) return nullptr;
            if (at == kRemoved) continue;
            Entry& entry = entries_[at];
            if (entry.hash == hash && core::equal_values(entry.key.object(), key)) return &entry;
        }
    }

    void set(Object* key, Object* value) {
        if (Entry* const entry = find(key)) {
            const Ref<Object> old = std::exchange(entry->value, Ref<Object>(value));
            return;
        }
        if (entries_.size() + 1 > bins_.size() / 2) rebuild();
        const std::uint64_t hash = core::hash_value(key);
        entries_.push_back({Ref<Object>(key), Ref<Object>(value), hash, true});
        place(hash, static_cast<std::uint32_t>(entries_.size() - 1));
        ++count_;
    }

    // The entry is given back: its release may run code that uses the table.
    Entry remove(const Object* key) {
        Entry* const entry = find(key);
        if (entry == nullptr) return {};
        const auto at = static_cast<std::uint32_t>(entry - entries_.data());
        std::size_t bin = entry->hash & mask();
        while (bins_[bin] != at) bin = (bin + 1) & mask();
        bins_[bin] = kRemoved;
        --count_;
        Entry removed = std::exchange(*entry, Entry{});
        close_gaps_if_many();
        return removed;
    }

    std::vector<Entry> clear() {
        bins_.clear();
        count_ = 0;
        return std::exchange(entries_, {});
    }

    Entry* at(std::int32_t position) {
        if (position < 0 || static_cast<std::size_t>(position) >= count_) return nullptr;
        close_gaps();
        return &entries_[static_cast<std::size_t>(position)];
    }

    template <class Use>
    void for_each(Use use) const {
        for (const Entry& entry : entries_) {
            if (entry.used) use(entry);
        }
    }

private:
    static constexpr std::uint32_t kEmpty = 0xFFFFFFFF;
    static constexpr std::uint32_t kRemoved = 0xFFFFFFFE;

    std::size_t mask() const { return bins_.size() - 1; }

    void place(std::uint64_t hash, std::uint32_t at) {
        std::size_t bin = hash & mask();
        while (bins_[bin] != kEmpty && bins_[bin] != kRemoved) bin = (bin + 1) & mask();
        bins_[bin] = at;
    }

    void close_gaps_if_many() {
        if (entries_.size() > 32 && count_ < entries_.size() / 2) rebuild();
    }
    void close_gaps() {
        if (count_ != entries_.size()) rebuild();
    }

    void rebuild() {
        std::erase_if(entries_, [](const Entry& entry) { return !entry.used; });
        bins_.assign(std::bit_ceil(std::max<std::size_t>(8, (entries_.size() + 1) * 3)), kEmpty);
        for (std::size_t i = 0; i < entries_.size(); ++i) place(entries_[i].hash, static_cast<std::uint32_t>(i));
    }

    std::vector<Entry> entries_;
    std::vector<std::uint32_t> bins_;
    std::size_t count_ = 0;
};

HashTable& table_of(Object* dictionary) {
    if (dictionary == nullptr) RaiseNilObjectException();
    if (dictionary->native == nullptr) dictionary->native = new HashTable;
    return *native<HashTable>(dictionary);
}

[[noreturn]] void raise_no_key(const Object* key) {
    std::string message = "the dictionary has no such key";
    if (core::kind_of(key) == core::ValueKind::kString) {
        message.append(": ").append(view(static_cast<const ValueObject*>(key)->string));
    }
    RuntimeRaise("KeyNotFoundException", message);
}

Ref<Object> list(Object* dictionary, Ref<Object> HashTable::Entry::*part) {
    const HashTable& table = table_of(dictionary);
    auto array = ArrayOf<Variant>::make(static_cast<std::int32_t>(table.count()) - 1);
    std::int32_t next = 0;
    table.for_each([&](const HashTable::Entry& entry) { array->set(next++, entry.*part); });
    return array;
}

}  // namespace

void dictionaryConstructor(Object* dictionary) { table_of(dictionary); }
void dictionaryDestructor(Object* dictionary) { delete std::exchange(dictionary->native, nullptr); }

std::int32_t dictionaryCount(Object* dictionary, std::int32_t) {
    return static_cast<std::int32_t>(table_of(dictionary).count());
}

void dictionaryRemoveAll(Object* dictionary) { table_of(dictionary).clear(); }

bool dictionaryHasKey(Object* dictionary, Object* key) { return table_of(dictionary).find(key) != nullptr; }

void dictionaryRemove(Object* dictionary, Object* key) {
    if (!table_of(dictionary).remove(key).used) raise_no_key(key);
}

Ref<Object> dictionaryValueGetter(Object* dictionary, Object* key) {
    const HashTable::Entry* const entry = table_of(dictionary).find(key);
    if (entry == nullptr) raise_no_key(key);
    return entry->value;
}

void dictionaryValueSetter(Object* dictionary, Object* key, Object* value) {
    try {
        return table_of(dictionary).set(key, value);
    } catch (const std::bad_alloc&) {
    }
    RuntimeRaise("OutOfMemoryException", "no memory for a dictionary");
}

Ref<Object> DictionaryLookup(Object* dictionary, Object* key, Object* otherwise) {
    const HashTable::Entry* const entry = table_of(dictionary).find(key);
    return entry == nullptr ? Ref<Object>(otherwise) : entry->value;
}

Ref<Object> dictionaryKey(Object* dictionary, std::int32_t position) {
    const HashTable::Entry* const entry = table_of(dictionary).at(position);
    if (entry == nullptr) RuntimeRaise("OutOfBoundsException", "the dictionary has no key " + std::to_string(position));
    return entry->key;
}

Ref<Object> dictionaryKeys(Object* dictionary) { return list(dictionary, &HashTable::Entry::key); }
Ref<Object> dictionaryValues(Object* dictionary) { return list(dictionary, &HashTable::Entry::value); }

}  // namespace tavrik
