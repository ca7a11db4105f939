#pragma once

#include <tavrik/memory_block.h>

namespace tavrik::core {

// The room of a block. nil raises NilObjectException.
inline MemoryBlockObject& block_of(Object* object) {
    if (object == nullptr) RaiseNilObjectException();
    return *static_cast<MemoryBlockObject*>(object);
}

inline bool size_is_known(const MemoryBlockObject& block) { return block.limit != kUnknownLimit; }

}  // namespace tavrik::core
