// error: the function in this row takes another number of arguments than the member it stands for
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

bool ring_once(Bell*) { return true; }
constexpr OperationRow kOperations[] = {operation<&Bell::Ring, ring_once>("Ring")};

}  // namespace tavrik::wrong
