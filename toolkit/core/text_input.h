#pragma once

#include "toolkit/core/encoding.h"
#include "toolkit/core/line_scanner.h"
#include "toolkit/core/stream.h"

#include <optional>
#include <string>

namespace tavrik::core {

// A stream of text in some encoding, which is read as UTF-8. Encodings are TextEncodings; nil leaves the choice to the
// mark at the start.
class TextInput final : public Stream {
public:
    using Stream::Stream;

    String read(std::size_t count, const Object* encoding);
    String read_line(const Object* encoding);
    String read_all(const Object* encoding);

    bool at_text_end();
    std::uint64_t text_position() const { return position() - held_back(); }
    void set_text_position(std::uint64_t position);

    // Behind open: it is another text.
    void start_text();

private:
    // What bytes are read as, once it is known.
    struct Reading {
        explicit Reading(const EncodingRow& encoding) : row(&encoding), decoder(encoding), lines(encoding) {}

        const EncodingRow* row;
        Decoder decoder;
        LineScanner lines;
    };

    std::size_t held_back() const { return reading_ ? reading_->decoder.held_back() : 0; }
    std::string_view peek(std::size_t wanted);
    void look_for_mark();
    const EncodingRow& row_for(const Object* encoding);
    void begin(const Object* encoding);
    void skip_lf();
    String rest_of_text(std::string text);
    String line_of(std::string_view bytes);

    std::optional<Reading> reading_;
    bool looked_for_mark_ = false;
    const EncodingRow* marked_ = nullptr;
    std::size_t mark_length_ = 0;
    bool behind_cr_ = false;  // an LF that comes next belongs to a line end that was read
};

}  // namespace tavrik::core
