// error: a row overrides an operation of a parent, and this member belongs to no parent of the class
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

bool beat(Drum*, std::int32_t) { return true; }
constexpr OperationRow kOperations[] = {overrides<Drum, &Bell::Ring, beat>("Ring")};

}  // namespace tavrik::wrong
