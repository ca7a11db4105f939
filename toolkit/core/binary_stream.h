#pragma once

#include "toolkit/core/byte_store.h"

#include <tavrik/object.h>

#include <memory>

namespace tavrik::core {

// A new BinaryStream over an open store.
Ref<Object> make_binary_stream(std::unique_ptr<ByteStore> store);

}  // namespace tavrik::core
