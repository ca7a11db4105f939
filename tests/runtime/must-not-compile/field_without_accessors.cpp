// error: a field of this type has no accessors
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

struct Chime : Class<Chime> {
    std::int8_t tone;
};
constexpr FieldRow kFields[] = {field<&Chime::tone>("tone")};

}  // namespace tavrik::wrong
