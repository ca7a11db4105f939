#pragma once

#include "runtime/class.h"

// A class and functions for its rows. Each source beside this one has one row that is wrong.
namespace tavrik::wrong {

struct Instrument : Class<Instrument> {
    static const ClassDefinition& definition();
    bool Play(std::int32_t times) { return dispatch<&Instrument::Play>(this, times); }

    struct Events {
        static inline constinit Event<bool(std::int32_t)> Played;
    };
};

struct Bell : Class<Bell, Instrument> {
    static const ClassDefinition& definition();
    bool Ring(std::int32_t times) { return dispatch<&Bell::Ring>(this, times); }
    String Tone() { return {}; }
    void set_Tone(const String&) {}
    void set_Pitch(double) {}
};

struct Drum : Class<Drum, Instrument> {
    static const ClassDefinition& definition();
};

inline bool ring(Bell*, std::int32_t) { return true; }

}  // namespace tavrik::wrong
