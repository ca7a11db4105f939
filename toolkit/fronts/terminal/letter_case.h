#pragma once

#include <string_view>

namespace tavrik::front::terminal {

// Whether two UTF-8 texts differ at most in letter case, in the Latin, Greek, Cyrillic and Armenian scripts. The
// program's locale has no say. Bytes that are no UTF-8 equal only themselves.
bool same_letters(std::string_view left, std::string_view right);

}  // namespace tavrik::front::terminal
