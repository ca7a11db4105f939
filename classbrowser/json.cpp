#include "classbrowser/json.h"

namespace tavrik::classbrowser {

Json& Json::key(std::string_view name) {
    separate();
    quote(name);
    line_ += ':';
    needs_comma_ = false;
    return *this;
}

void Json::text(std::string_view value) {
    separate();
    quote(value);
}

void Json::number(std::int64_t value) {
    separate();
    line_ += std::to_string(value);
}

void Json::boolean(bool value) {
    separate();
    line_ += value ? "true" : "false";
}

void Json::null() {
    separate();
    line_ += "null";
}

void Json::open(char bracket) {
    separate();
    line_ += bracket;
    needs_comma_ = false;
}

void Json::close(char bracket) {
    line_ += bracket;
    needs_comma_ = true;
}

void Json::separate() {
    if (needs_comma_) line_ += ',';
    needs_comma_ = true;
}

void Json::quote(std::string_view bytes) {
    constexpr std::string_view kHex = "0123456789abcdef";
    line_ += '"';
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            line_ += '\\';
            line_ += byte;
        } else if (code < 0x20) {
            line_.append("\\u00").append({kHex[code >> 4], kHex[code & 15]});
        } else {
            line_ += byte;
        }
    }
    line_ += '"';
}

}  // namespace tavrik::classbrowser
