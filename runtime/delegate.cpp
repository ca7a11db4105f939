#include "runtime/delegate.h"

namespace tavrik {

void Delegate_IM_Invoke(Object* delegate) {
    const auto* const held = static_cast<const Delegate*>(delegate);
    reinterpret_cast<void (*)(Object*)>(held->function)(held->target);
}

}  // namespace tavrik
