#pragma once

#include <tavrik/object.h>

namespace tavrik::core {

// The releases that are under way on one stack: how deep they are nested, and the objects that wait for the outermost.
struct Releases {
    int depth = 0;
    Object* first_waiting = nullptr;
    Object* last_waiting = nullptr;
};
extern Releases releases;  // of the running stack

// Keeps what a Destructor or __Exit raised until a frame or the event ends. A second one before that can't wait too:
// the person is told at once.
void note_release_exception(Object* exception) noexcept;

}  // namespace tavrik::core
