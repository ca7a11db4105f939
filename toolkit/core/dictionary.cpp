#include "toolkit/core/hash_table.h"

#include <tavrik/dictionary.h>
#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <memory>
#include <new>
#include <string>
#include <utility>

namespace tavrik {
namespace {

using core::HashTable;

HashTable& table_of(Object* dictionary) {
    if (dictionary == nullptr) RaiseNilObjectException();
    // One that a release at its end stores into has no table any more.
    if (dictionary->native == nullptr) [[unlikely]]
        dictionary->native = std::make_unique<HashTable>().release();
    return *native<HashTable>(dictionary);
}

[[noreturn]] void raise_no_key(const Object* key) {
    std::string message = "the dictionary has no such key";
    if (core::is_text(core::kind_of(key))) message.append(": ").append(core::text_of(key).view());
    RuntimeRaise("KeyNotFoundException", message);
}

template <class Change>
auto change(Object* dictionary, Change change_table) {
    try {
        return change_table(table_of(dictionary));
    } catch (const std::bad_alloc&) {
    }
    RuntimeRaise("OutOfMemoryException", "no memory for a dictionary");
}

Ref<Object> list(Object* dictionary, Object* HashTable::Entry::*part) {
    const HashTable& table = table_of(dictionary);
    auto array = ArrayOf<Variant>::make(static_cast<std::int32_t>(table.count()) - 1);
    std::int32_t next = 0;
    for (const HashTable::Entry& entry : table.entries()) {
        if (!entry.is_gap()) array->set(next++, entry.*part);
    }
    return array;
}

}  // namespace

void dictionaryConstructor(Object* dictionary) { table_of(dictionary); }
void dictionaryDestructor(Object* dictionary) {
    const std::unique_ptr<NativeState> ended(std::exchange(dictionary->native, nullptr));
}

std::int32_t dictionaryCount(Object* dictionary, std::int32_t) {
    return static_cast<std::int32_t>(table_of(dictionary).count());
}

std::int32_t dictionaryGetBins(Object* dictionary, std::int32_t) { return table_of(dictionary).bins(); }
void dictionarySetBins(Object* dictionary, std::int32_t, std::int32_t bins) {
    change(dictionary, [bins](HashTable& table) { table.set_bins(bins); });
}

void dictionaryRemoveAll(Object* dictionary) { table_of(dictionary).clear(); }

bool dictionaryHasKey(Object* dictionary, Object* key) { return table_of(dictionary).find(key) != nullptr; }

void dictionaryRemove(Object* dictionary, Object* key) {
    if (!table_of(dictionary).remove(key).found) raise_no_key(key);
}

Ref<Object> dictionaryValueGetter(Object* dictionary, Object* key) {
    const HashTable::Entry* const entry = table_of(dictionary).find(key);
    if (entry == nullptr) raise_no_key(key);
    return {entry->value};
}

void dictionaryValueSetter(Object* dictionary, Object* key, Object* value) {
    change(dictionary, [=](HashTable& table) { return table.set(key, value); });
}

Ref<Object> DictionaryLookup(Object* dictionary, Object* key, Object* otherwise) {
    const HashTable::Entry* const entry = table_of(dictionary).find(key);
    return {entry == nullptr ? otherwise : entry->value};
}

Ref<Object> dictionaryKey(Object* dictionary, std::int32_t position) {
    HashTable& table = table_of(dictionary);
    const HashTable::Entry* const entry = position < 0 ? nullptr : table.at(static_cast<std::size_t>(position));
    if (entry == nullptr) RuntimeRaise("OutOfBoundsException", "the dictionary has no key " + std::to_string(position));
    return {entry->key};
}

Ref<Object> dictionaryKeys(Object* dictionary) { return list(dictionary, &HashTable::Entry::key); }
Ref<Object> dictionaryValues(Object* dictionary) { return list(dictionary, &HashTable::Entry::value); }

}  // namespace tavrik
