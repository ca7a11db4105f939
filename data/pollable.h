#pragma once

#include "runtime/class.h"

namespace tavrik {

// What the event loop may ask whether there is something to do. It declares nothing: what is called is the class's own
// method "_Poll".
struct _Pollable : Interface<_Pollable> {};

}  // namespace tavrik
