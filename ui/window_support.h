#pragma once

#include <tavrik/object.h>

// What all windows share.
namespace tavrik::_WindowSupport {

// The windows, where something has entered them.
extern Object* Windows;
// The windows that wait for an update.
extern Object* mDirtyWindows;

void Windows__Init();
void Windows__Exit();
void mDirtyWindows__Exit();

}  // namespace tavrik::_WindowSupport
