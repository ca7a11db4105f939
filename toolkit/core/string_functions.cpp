#include "toolkit/core/number_text.h"
#include "toolkit/core/text.h"

#include <tavrik/runtime.h>

#include <algorithm>
#include <cmath>

namespace tavrik {
namespace {

std::size_t not_below(std::int32_t number, std::int32_t least) {
    return static_cast<std::size_t>(std::max(number, least));
}

// The whole text needs no copy.
String part_of(const String& text, std::size_t from, std::size_t to) {
    if (from == 0 && to == text.view().size()) return text;
    return String(text.view().substr(from, to - from));
}

}  // namespace

std::int32_t StringDBCSLen(const String& text) {
    return static_cast<std::int32_t>(core::count_characters(text.view()));
}

String StringDBCSLeft(const String& text, std::int32_t count) {
    return part_of(text, 0, core::skip_characters(text.view(), 0, not_below(count, 0)));
}

String StringDBCSMid2(const String& text, std::int32_t start) {
    return part_of(text, core::skip_characters(text.view(), 0, not_below(start, 1) - 1), text.view().size());
}

String StringDBCSMid3(const String& text, std::int32_t start, std::int32_t length) {
    const std::size_t from = core::skip_characters(text.view(), 0, not_below(start, 1) - 1);
    return part_of(text, from, core::skip_characters(text.view(), from, not_below(length, 0)));
}

std::int32_t StringInStr(std::int32_t start, const String& text, const String& sought) {
    const std::size_t skipped = not_below(start, 1) - 1;
    const std::size_t from = core::skip_characters(text.view(), 0, skipped);
    const std::size_t found = text.view().find(sought.view(), from);
    if (found == std::string_view::npos) return 0;
    const std::size_t between = core::count_characters(text.view().substr(from, found - from));
    if (found == from && core::count_characters(text.view()) < skipped) return 0;
    return static_cast<std::int32_t>(skipped + between + 1);
}

std::int32_t StringCountFields(const String& text, const String& separator) {
    if (separator.empty()) return 1;
    std::int32_t fields = 1;
    const std::string_view bytes = text.view();
    for (std::size_t at = bytes.find(separator.view()); at != std::string_view::npos;
         at = bytes.find(separator.view(), at + separator.view().size())) {
        ++fields;
    }
    return fields;
}

String StringNthField(const String& text, const String& separator, std::int32_t field) {
    if (separator.empty()) return field == 1 ? text : String();
    std::string_view rest = text.view();
    for (std::int32_t at = 1; at <= field; ++at) {
        const std::size_t end = rest.find(separator.view());
        if (at == field) return String(rest.substr(0, end));
        if (end == std::string_view::npos) break;
        rest.remove_prefix(end + separator.view().size());
    }
    return {};
}

double StringVal(const String& text) { return core::read_number(text.view()); }

double RuntimeCos(double angle) { return std::cos(angle); }
double RuntimeSin(double angle) { return std::sin(angle); }

}  // namespace tavrik
