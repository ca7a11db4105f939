#pragma once

#include <tavrik/array.h>

namespace tavrik::Introspection {

// A new array with the same elements. Raises NilObjectException for nil.
Ref<Object> copy_references(Arg<ArrayOf<Object>> list);

template <class T>
Ref<ArrayOf<T>> copy_of(Arg<ArrayOf<T>> list) {
    return static_ref<ArrayOf<T>>(copy_references(Arg<ArrayOf<Object>>::unchecked(list.object())));
}

}  // namespace tavrik::Introspection
