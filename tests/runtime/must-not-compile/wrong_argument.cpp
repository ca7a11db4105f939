// error: the function in this row takes other types than the member it stands for
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

bool ring_long(Bell*, std::int64_t) { return true; }
constexpr OperationRow kOperations[] = {operation<&Bell::Ring, ring_long>("Ring")};

}  // namespace tavrik::wrong
