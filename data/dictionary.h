#pragma once

#include "data/pair.h"
#include "runtime/class.h"

#include <tavrik/dictionary.h>

namespace tavrik {

// Keys and values are variants; keys compare by value. Key, Keys and Values go in order of insertion.
struct Dictionary : Class<Dictionary> {
    static const ClassDefinition& definition();

    void Clear() { dispatch<&Dictionary::Clear>(this); }
    bool HasKey(Arg<Variant> key) { return dispatch<&Dictionary::HasKey>(this, key); }
    Ref<Variant> Key(std::int32_t position) { return dispatch<&Dictionary::Key>(this, position); }
    void Remove(Arg<Variant> key) { dispatch<&Dictionary::Remove>(this, key); }
    Ref<Variant> Value(Arg<Variant> key) { return dispatch<&Dictionary::Value>(this, key); }
    Ref<Variant> Lookup(Arg<Variant> key, Arg<Variant> otherwise) {
        return dispatch<&Dictionary::Lookup>(this, key, otherwise);
    }
    // New arrays: a change of the dictionary doesn't reach them.
    Ref<ArrayOf<Variant>> Values() { return dispatch<&Dictionary::Values>(this); }
    Ref<ArrayOf<Variant>> Keys() { return dispatch<&Dictionary::Keys>(this); }
    void set_Value(Arg<Variant> key, Arg<Variant> value) { dispatch<&Dictionary::set_Value>(this, key, value); }
    // Stores the pairs in their order. A nil array stores none; a nil pair raises NilObjectException.
    void Constructor(Arg<ArrayOf<Pair>> pairs) { dispatch<&Dictionary::Constructor>(this, pairs); }
    void __DependencyList() { dispatch<&Dictionary::__DependencyList>(this); }

    std::int32_t Count() { return dictionaryCount(this, 0); }
    std::int32_t BinCount() { return dictionaryGetBins(this, 0); }
    void set_BinCount(std::int32_t bins) { dictionarySetBins(this, 0, bins); }
};

}  // namespace tavrik
