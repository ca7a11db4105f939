#pragma once

#include "toolkit/front/front.h"

namespace tavrik::front {

// The native front where there is a display and its module can be opened, else the terminal.
std::unique_ptr<Front> choose_front(const Start& start);

}  // namespace tavrik::front
