#pragma once

#include "runtime/class.h"

namespace tavrik::bench {

// What is called by its type information: a method of a text and a number, and a number as a property.
struct Speaker : Class<Speaker> {
    static const ClassDefinition& definition();

    bool Say(const String& text, std::int32_t times) { return dispatch<&Speaker::Say>(this, text, times); }
    std::int32_t Volume() { return mVolume; }
    void set_Volume(std::int32_t volume) { mVolume = volume; }

    std::int32_t mVolume;
};

}  // namespace tavrik::bench
