// error: the function in this row returns another type than the member it stands for
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

std::int32_t ring_and_count(Bell*, std::int32_t times) { return times; }
constexpr OperationRow kOperations[] = {operation<&Bell::Ring, ring_and_count>("Ring")};

}  // namespace tavrik::wrong
