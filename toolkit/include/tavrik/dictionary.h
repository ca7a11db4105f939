#pragma once

#include <tavrik/array.h>
#include <tavrik/object.h>

// Keys and values are variants. Keys compare by value: numbers by number and texts by their bytes, whatever kind holds
// them, objects by identity. Entries stand in the order in which their keys were first stored.
namespace tavrik {

TAVRIK_API void dictionaryConstructor(Object* dictionary);
TAVRIK_API void dictionaryDestructor(Object* dictionary);
TAVRIK_API std::int32_t dictionaryCount(Object* dictionary, std::int32_t);
// How many bins the table has. Setting it rounds up to a power of two with room for the entries; 0 and less mean the
// fewest. Raises OutOfMemoryException, and has changed nothing then.
TAVRIK_API std::int32_t dictionaryGetBins(Object* dictionary, std::int32_t);
TAVRIK_API void dictionarySetBins(Object* dictionary, std::int32_t, std::int32_t bins);
TAVRIK_API void dictionaryRemoveAll(Object* dictionary);
TAVRIK_API bool dictionaryHasKey(Object* dictionary, Object* key);
// Raises KeyNotFoundException.
TAVRIK_API void dictionaryRemove(Object* dictionary, Object* key);
// Raises KeyNotFoundException.
TAVRIK_API Ref<Object> dictionaryValueGetter(Object* dictionary, Object* key);
// Raises OutOfMemoryException.
TAVRIK_API void dictionaryValueSetter(Object* dictionary, Object* key, Object* value);
TAVRIK_API Ref<Object> DictionaryLookup(Object* dictionary, Object* key, Object* otherwise);
// The key at a position from 0 on. Raises OutOfBoundsException.
TAVRIK_API Ref<Object> dictionaryKey(Object* dictionary, std::int32_t position);
// New arrays, which later changes don't touch.
TAVRIK_API Ref<Object> dictionaryKeys(Object* dictionary);
TAVRIK_API Ref<Object> dictionaryValues(Object* dictionary);

}  // namespace tavrik
