#include "introspection/lists.h"

#include <tavrik/runtime.h>

namespace tavrik::Introspection {

Ref<Object> copy_references(Arg<ArrayOf<Object>> list) {
    const std::int32_t bound = list->upper_bound();
    const auto copy = ArrayOf<Object>::make();
    copy->resize(bound);
    for (std::int32_t i = 0; i <= bound; ++i) {
        copy->set(i, list->at(i));
        RuntimeBackgroundTask();
    }
    return copy;
}

}  // namespace tavrik::Introspection
