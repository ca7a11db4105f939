// error: the operation in this row takes or returns other types than the event that it handles
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

inline constinit Event<void()> broken;
constexpr HandlerRow kHandlers[] = {handles<&Bell::Ring>("Broken", broken)};

}  // namespace tavrik::wrong
