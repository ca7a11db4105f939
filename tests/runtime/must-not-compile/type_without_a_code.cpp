// error: a member of a class takes and returns only types that have a type code
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

struct Chime : Class<Chime> {
    bool Ring(const char* tone);
};
bool ring_chime(Chime*, const char*) { return true; }
constexpr OperationRow kOperations[] = {operation<&Chime::Ring, ring_chime>("Ring")};

}  // namespace tavrik::wrong
