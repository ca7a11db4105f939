#pragma once

#include "runtime/class.h"

namespace tavrik::bench {

// An object with a text.
struct Note : Class<Note> {
    static const ClassDefinition& definition();

    String Text() { return dispatch<&Note::Text>(this); }
    void set_Text(const String& text) { dispatch<&Note::set_Text>(this, text); }
    std::int32_t LengthOf(const String& text) { return dispatch<&Note::LengthOf>(this, text); }

    StringField mText;
};

}  // namespace tavrik::bench
