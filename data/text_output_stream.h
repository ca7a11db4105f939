#pragma once

#include "data/streams.h"
#include "runtime/class.h"

#include <tavrik/text_stream.h>

namespace tavrik {

// Text to a file or a descriptor, in pieces or lines. What fails shows in LastErrorCode, whose values are those of
// StreamError.
struct TextOutputStream : Class<TextOutputStream, TextOutputStreamObject> {
    static const ClassDefinition& definition();

    void WriteLine(const String& text) { dispatch<&TextOutputStream::WriteLine>(this, text); }
    void Write(const String& text) { dispatch<&TextOutputStream::Write>(this, text); }
    void Close() { dispatch<&TextOutputStream::Close>(this); }
    void Flush() { dispatch<&TextOutputStream::Flush>(this); }
    bool WriteError() { return dispatch<&TextOutputStream::WriteError>(this); }
    void Constructor(std::int32_t handle, std::int32_t type) {
        dispatch<&TextOutputStream::Constructor>(this, handle, type);
    }
    std::int32_t Handle(std::int32_t type) { return dispatch<&TextOutputStream::Handle>(this, type); }
    void __DependencyList() { dispatch<&TextOutputStream::__DependencyList>(this); }

    // What WriteLine writes behind each line; the platform's line end at first.
    String Delimiter() { return mDelimiter; }
    void set_Delimiter(const String& delimiter) { mDelimiter = delimiter; }
    std::int32_t LastErrorCode() { return TextOutputStreamLastErrorGetter(this, 0); }

    StringField mDelimiter;
};

}  // namespace tavrik
