#include "toolkit/core/line_scanner.h"

#include "toolkit/core/encoding.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tavrik::core {
namespace {

std::size_t find_byte(std::string_view bytes) {
    const std::size_t lf = bytes.find('\n');
    const std::size_t cr = bytes.substr(0, lf).find('\r');
    return std::min(lf, cr);
}

}  // namespace

LineScanner::LineScanner(const EncodingRow& encoding) {
    if (encoding.coding == Coding::kUtf8) return;
    std::string cr = encode_all(encoding, "\r");
    std::string lf = encode_all(encoding, "\n");
    const bool is_unit = cr.size() == 1 || cr.size() == 2 || cr.size() == 4;
    if (!is_unit || cr.size() != lf.size()) return;
    cr_ = std::move(cr);
    lf_ = std::move(lf);
}

std::size_t LineScanner::find(std::string_view bytes) const {
    if (cr_ == "\r" && lf_ == "\n") return find_byte(bytes);
    for (std::size_t at = 0; bytes.size() - at >= unit(); at += unit()) {
        const std::string_view rest = bytes.substr(at);
        if (begins_with_cr(rest) || begins_with_lf(rest)) return at;
    }
    return std::string_view::npos;
}

}  // namespace tavrik::core
