#pragma once

#include <tavrik/object.h>

namespace tavrik::core {

// Keeps what a Destructor or __Exit raised until a frame or the event ends. A second one before that can't wait too:
// the person is told at once.
void note_release_exception(Object* exception) noexcept;

}  // namespace tavrik::core
