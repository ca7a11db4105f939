#include "ui/window_support.h"

#include <tavrik/runtime.h>

namespace tavrik::_WindowSupport {

Object* Windows = nullptr;
Object* mDirtyWindows = nullptr;

void Windows__Init() {
    Object* const array = CreateArray(1, kReferenceWidth, -1).release();
    RuntimeLockUnlockObjects(nullptr, std::exchange(Windows, array));
}

void Windows__Exit() { RuntimeLockUnlockObjects(nullptr, std::exchange(Windows, nullptr)); }
void mDirtyWindows__Exit() { RuntimeLockUnlockObjects(nullptr, std::exchange(mDirtyWindows, nullptr)); }

}  // namespace tavrik::_WindowSupport
