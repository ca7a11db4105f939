#pragma once

#include "ui/container_control.h"

namespace tavrik::tour {

// A coloured area with a button that counts its presses.
struct Counter : Class<Counter, ContainerControl> {
    static const ClassDefinition& definition();

    void CreateControls() { dispatch<&Counter::CreateControls>(this); }
    // What is counted, and how many there are.
    void Count(const String& what, std::int32_t number) { dispatch<&Counter::Count>(this, what, number); }

    StringField mWhat;
    std::int32_t mNumber;
};

}  // namespace tavrik::tour
