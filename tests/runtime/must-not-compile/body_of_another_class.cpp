// error: the function in this row belongs to another class
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

bool beat(Drum*, std::int32_t) { return true; }
constexpr OperationRow kOperations[] = {operation<&Bell::Ring, beat>("Ring")};

}  // namespace tavrik::wrong
