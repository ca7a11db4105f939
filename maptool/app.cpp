#include "maptool/app.h"

namespace tavrik {

const ClassDefinition& App::definition() {
    static constexpr ClassDefinition kDefinition = define<App>({.layer = Layer::kApplication});
    return kDefinition;
}

}  // namespace tavrik
