#pragma once

#include <tavrik/string.h>

#include <concepts>

namespace tavrik {

// What a structure derives from: plain bytes, which members take by reference only. Each has a function that fills it
// from bytes in the given order: `static void set_StringValue(S&, bool little_endian, const String&)`.
struct Structure {};

template <class T>
concept IsStructure = std::derived_from<T, Structure>;

}  // namespace tavrik
