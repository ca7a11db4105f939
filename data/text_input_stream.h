#pragma once

#include "data/streams.h"
#include "data/text_encoding.h"
#include "runtime/class.h"

#include <tavrik/text_stream.h>

namespace tavrik {

// Text of a file or a descriptor, in pieces or lines. What fails shows in LastErrorCode, whose values are those of
// StreamError.
struct TextInputStream : Class<TextInputStream, TextInputStreamObject> {
    static const ClassDefinition& definition();

    String Read(std::int32_t most, Arg<TextEncoding> encoding) {
        return dispatch<&TextInputStream::Read>(this, most, encoding);
    }
    String ReadLine(Arg<TextEncoding> encoding) { return dispatch<&TextInputStream::ReadLine>(this, encoding); }
    String ReadAll(Arg<TextEncoding> encoding) { return dispatch<&TextInputStream::ReadAll>(this, encoding); }
    void Close() { dispatch<&TextInputStream::Close>(this); }
    bool EOF_() { return dispatch<&TextInputStream::EOF_>(this); }
    bool ReadError() { return dispatch<&TextInputStream::ReadError>(this); }
    void Constructor(std::int32_t handle, std::int32_t type) {
        dispatch<&TextInputStream::Constructor>(this, handle, type);
    }
    std::int32_t Handle(std::int32_t type) { return dispatch<&TextInputStream::Handle>(this, type); }

    // That of the text where a read names none.
    Ref<TextEncoding> Encoding() { return mEncoding; }
    void set_Encoding(Arg<TextEncoding> encoding) { mEncoding = encoding; }
    std::uint64_t PositionB() { return TextInputStreamGetPosition(this, 0); }
    void set_PositionB(std::uint64_t position) { TextInputStreamSetPosition(this, 0, position); }
    std::int32_t LastErrorCode() { return TextInputStreamLastErrorGetter(this, 0); }

    Field<TextEncoding> mEncoding;
};

}  // namespace tavrik
