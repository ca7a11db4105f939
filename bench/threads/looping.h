#pragma once

#include "data/thread.h"

namespace tavrik::bench {

// A thread that ends its turn as soon as it has one, until it is killed.
Ref<Thread> start_looping_thread();

// Lets a killed thread end.
void end(const Ref<Thread>& thread);

}  // namespace tavrik::bench
