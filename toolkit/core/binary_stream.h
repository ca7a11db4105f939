#pragma once

#include "toolkit/core/file_store.h"

#include <tavrik/object.h>

namespace tavrik::core {

// A new BinaryStream over an open file.
Ref<Object> make_binary_stream(FileStore file);

}  // namespace tavrik::core
