#pragma once

#include <optional>
#include <string_view>
#include <vector>

// The text language for types. Every function takes any bytes.
namespace tavrik {

enum class ByReference { kAllowed, kNotAllowed };

// Takes one type code off the front of `rest` and returns it; nothing, and `rest` as it was, where none begins.
std::optional<std::string_view> take_type_code(std::string_view& rest, ByReference by_reference);

// "%", the result's code or nothing, "%", the parameters' codes.
struct Signature {
    std::string_view result;
    std::vector<std::string_view> parameters;
};

// The parts of a signature; nothing if the text is none.
std::optional<Signature> split_signature(std::string_view text);

}  // namespace tavrik
