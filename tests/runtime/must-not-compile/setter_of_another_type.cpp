// error: the setter in this row takes another type than the getter returns
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

constexpr PropertyRow kProperties[] = {property<&Bell::Tone, &Bell::set_Pitch>("Tone")};

}  // namespace tavrik::wrong
