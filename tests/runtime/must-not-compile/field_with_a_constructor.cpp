// error: the fields of a class are Field, StringField or plain values
#include "tests/runtime/must-not-compile/bell.h"

namespace tavrik::wrong {

struct Chime : Class<Chime> {
    String tone;
};
constexpr ClassDefinition kDefinition = define<Chime>({});

}  // namespace tavrik::wrong
