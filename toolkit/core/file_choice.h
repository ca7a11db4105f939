#pragma once

#include "toolkit/front/front.h"

#include <tavrik/object.h>

#include <functional>

namespace tavrik::core {

// Lets the person choose a file; nil on cancel. Everything buffered is in the files before. `over` is asked when the
// dialog opens, on the main stack: what a thread has seen before may be gone by then.
Ref<Object> choose_item(const front::FileChoice& choice, const std::function<front::WindowFace*()>& over);

}  // namespace tavrik::core
