#pragma once

#include "runtime/class.h"

namespace tavrik::bench {

// A small object with one operation and one event.
struct Counter : Class<Counter> {
    static const ClassDefinition& definition();

    std::int32_t Advance(std::int32_t by) { return dispatch<&Counter::Advance>(this, by); }
    void Announce(std::int32_t number);

    struct Events {
        static inline constinit Event<void(std::int32_t)> Announced;
    };

    std::int32_t mCount;
};

// Takes the number that a counter announces as its count.
void take_announced(Object* counter, std::int32_t number);

}  // namespace tavrik::bench
