#include "toolkit/core/text_input.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>

namespace tavrik::core {
namespace {

using namespace std::string_view_literals;

struct Mark {
    std::string_view bytes;
    const char* encoding;
};

// One that begins with another one stands before it.
constexpr Mark kMarks[] = {
    {"\xFF\xFE\0\0"sv, "UTF-32LE"}, {"\0\0\xFE\xFF"sv, "UTF-32BE"}, {"\xEF\xBB\xBF"sv, "UTF-8"},
    {"\xFF\xFE"sv, "UTF-16LE"},     {"\xFE\xFF"sv, "UTF-16BE"},
};
constexpr std::size_t kLongestMark = 4;

const EncodingRow& need_encoding(std::uint32_t code) {
    if (const EncodingRow* const row = find_encoding(code)) return *row;
    RuntimeRaise("UnsupportedFormatException", "there is no text encoding with the code " + std::to_string(code));
}

const EncodingRow& utf8() {
    static const EncodingRow& row = need_encoding(kEncodingUtf8);
    return row;
}

}  // namespace

std::string_view TextInput::peek(std::size_t wanted) {
    int error = 0;
    const std::string_view bytes = buffer().peek(wanted, error);
    failed_to_read(error);
    return bytes;
}

void TextInput::start_text() {
    reading_.reset();
    looked_for_mark_ = false;
    behind_cr_ = false;
}

void TextInput::look_for_mark() {
    looked_for_mark_ = true;
    marked_ = nullptr;
    mark_length_ = 0;
    const std::uint64_t before = position();
    if (before != 0) Stream::set_position(0);

    // No more is asked for than may still be a mark, since more may never come.
    std::string_view start;
    const auto may_be = [&](const Mark& mark) { return mark.bytes.starts_with(start); };
    for (std::size_t count = 1; count <= kLongestMark && std::ranges::any_of(kMarks, may_be); ++count) {
        start = peek(count).substr(0, count);
        if (start.size() < count) break;
    }
    for (const Mark& mark : kMarks) {
        if (marked_ != nullptr || !start.starts_with(mark.bytes)) continue;
        marked_ = find_encoding(std::string_view(mark.encoding));
        mark_length_ = mark.bytes.size();
    }
    if (before != 0) Stream::set_position(before);
}

// Forms of Unicode without an order have that of the mark, and else the higher byte first.
const EncodingRow& TextInput::row_for(const Object* encoding) {
    if (encoding == nullptr) return marked_ == nullptr ? utf8() : *marked_;
    const EncodingRow& named = need_encoding(code_of(encoding));
    const auto ordered = [this](Coding little, std::string_view big) -> const EncodingRow& {
        return marked_ != nullptr && marked_->coding == little ? *marked_ : *find_encoding(big);
    };
    if (named.coding == Coding::kUtf16) return ordered(Coding::kUtf16Little, "UTF-16BE");
    if (named.coding == Coding::kUtf32) return ordered(Coding::kUtf32Little, "UTF-32BE");
    return named;
}

// Each read begins here: the encoding is settled, and the position is where text begins.
void TextInput::begin(const Object* encoding) {
    if (!looked_for_mark_) look_for_mark();
    const EncodingRow& row = row_for(encoding);
    if (!reading_ || reading_->row != &row) {
        if (const std::size_t cut = held_back(); cut > 0 && !buffer().store().is_sequential()) {
            Stream::set_position(position() - cut);
        }
        reading_.emplace(row);
    }
    if (position() == 0 && marked_ == &row) buffer().skip(peek(mark_length_).substr(0, mark_length_).size());
    skip_lf();
}

void TextInput::skip_lf() {
    if (!std::exchange(behind_cr_, false)) return;
    const LineScanner& lines = reading_->lines;
    if (lines.begins_with_lf(peek(lines.unit()))) buffer().skip(lines.unit());
}

String TextInput::read(std::size_t count, const Object* encoding) {
    if (count == 0 || !need_open()) return {};
    begin(encoding);
    const std::size_t unit = reading_->lines.unit();
    std::size_t left = (count + unit - 1) / unit * unit;
    std::string text;
    while (left > 0 || text.empty()) {
        const std::string_view bytes = peek(1).substr(0, std::max(left, unit));
        if (bytes.empty()) {
            reading_->decoder.finish(text);
            break;
        }
        reading_->decoder.decode(bytes, text);
        buffer().skip(bytes.size());
        left -= std::min(left, bytes.size());
    }
    if (text.empty()) note_quiet_end();
    return String(text);
}

String TextInput::line_of(std::string_view bytes) {
    if (reading_->row->coding == Coding::kUtf8 && held_back() == 0 && is_utf8(bytes)) return String(bytes);
    std::string text;
    reading_->decoder.decode(bytes, text);
    reading_->decoder.finish(text);
    return String(text);
}

String TextInput::read_line(const Object* encoding) {
    if (!need_open()) return {};
    begin(encoding);
    const LineScanner& lines = reading_->lines;
    std::string line;
    for (;;) {
        const std::string_view bytes = peek(lines.unit());
        if (bytes.size() < lines.unit()) {
            line.append(bytes);
            buffer().skip(bytes.size());
            if (line.empty() && held_back() == 0) note_quiet_end();
            return line_of(line);
        }
        const std::size_t end = lines.find(bytes);
        if (end == std::string_view::npos) {
            const std::size_t whole = bytes.size() - bytes.size() % lines.unit();
            line.append(bytes, 0, whole);
            buffer().skip(whole);
            continue;
        }
        const String text = line.empty() ? line_of(bytes.substr(0, end)) : line_of(line.append(bytes, 0, end));
        behind_cr_ = lines.begins_with_cr(bytes.substr(end));
        buffer().skip(end + lines.unit());
        // Whoever types a line isn't waited for once it has ended.
        if (!buffer().store().is_sequential()) skip_lf();
        return text;
    }
}

String TextInput::read_all(const Object* encoding) {
    if (!need_open()) return {};
    begin(encoding);
    const std::uint64_t end = buffer().store().is_sequential() ? 0 : length();
    if (end <= position() || reading_->row->coding != Coding::kUtf8 || held_back() > 0) return rest_of_text({});

    const String text = read_text(end - position(), kEncodingUtf8);
    if (is_utf8(text.view())) return text;
    std::string valid;
    reading_->decoder.decode(text.view(), valid);
    return rest_of_text(std::move(valid));
}

String TextInput::rest_of_text(std::string text) {
    for (std::string_view bytes = peek(1); !bytes.empty(); bytes = peek(1)) {
        reading_->decoder.decode(bytes, text);
        buffer().skip(bytes.size());
    }
    reading_->decoder.finish(text);
    return String(text);
}

bool TextInput::at_text_end() {
    if (buffer().is_open() && reading_) skip_lf();
    return at_end() && held_back() == 0;
}

void TextInput::set_text_position(std::uint64_t position) {
    if (buffer().is_open() && buffer().store().is_sequential()) return set_position(position);
    reading_.reset();
    behind_cr_ = false;
    set_position(position);
}

}  // namespace tavrik::core
