#pragma once

#include <tavrik/runtime.h>

namespace tavrik {

// Calls the function that a delegate holds with the object that it holds.
void Delegate_IM_Invoke(Object* delegate);

}  // namespace tavrik
