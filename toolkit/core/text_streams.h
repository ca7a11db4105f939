#pragma once

#include "toolkit/core/file_store.h"

#include <tavrik/object.h>

namespace tavrik::core {

// New streams over an open file.
Ref<Object> make_text_input_stream(FileStore file);
Ref<Object> make_text_output_stream(FileStore file);

}  // namespace tavrik::core
