#pragma once

#include "toolkit/core/byte_store.h"

#include <tavrik/object.h>

#include <memory>

namespace tavrik::core {

// New streams over an open store.
Ref<Object> make_text_input_stream(std::unique_ptr<ByteStore> store);
Ref<Object> make_text_output_stream(std::unique_ptr<ByteStore> store);

}  // namespace tavrik::core
