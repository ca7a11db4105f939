#pragma once

#include "runtime/class.h"

#include <tavrik/variant.h>

namespace tavrik {

// Two values, which don't change after the constructor. In the pairs that build a dictionary, a key and its value.
struct Pair : Class<Pair> {
    static const ClassDefinition& definition();

    void Constructor(Arg<Variant> left, Arg<Variant> right) { dispatch<&Pair::Constructor>(this, left, right); }

    Ref<Variant> Left() { return mLeft; }
    Ref<Variant> Right() { return mRight; }

    Field<Variant> mLeft, mRight;
};

}  // namespace tavrik
