#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavrik::classbrowser {

// Writes one line of JSON from front to back, and sets the commas.
class Json {
public:
    // What `write` puts between the brackets.
    template <class Write>
    void object(Write write) {
        open('{');
        write();
        close('}');
    }
    template <class Write>
    void array(Write write) {
        open('[');
        write();
        close(']');
    }

    // The name of the next value in an object.
    Json& key(std::string_view name);
    void text(std::string_view value);
    void number(std::int64_t value);
    void boolean(bool value);
    void null();

    const std::string& line() const { return line_; }

private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void quote(std::string_view bytes);

    std::string line_;
    bool needs_comma_ = false;
};

}  // namespace tavrik::classbrowser
