#pragma once

#include "toolkit/core/encoding_table.h"

#include <string>
#include <string_view>

namespace tavrik::core {

// Finds the ends of lines in the bytes of an encoding: CR and LF, in units of 1, 2 or 4 bytes.
class LineScanner {
public:
    explicit LineScanner(const EncodingRow& encoding);

    std::size_t unit() const { return cr_.size(); }
    // The offset of the first unit that is CR or LF, or npos. Bytes behind the last whole unit aren't looked at.
    std::size_t find(std::string_view bytes) const;
    bool begins_with_cr(std::string_view bytes) const { return bytes.substr(0, unit()) == cr_; }
    bool begins_with_lf(std::string_view bytes) const { return bytes.substr(0, unit()) == lf_; }

private:
    std::string cr_ = "\r";
    std::string lf_ = "\n";
};

}  // namespace tavrik::core
