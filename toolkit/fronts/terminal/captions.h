#pragma once

#include <string>
#include <string_view>

namespace tavrik::front::terminal {

// Control characters spelled out ("\n", "\x1b"), so that a text can neither forge a line nor drive the terminal. All
// other bytes stay as they are, UTF-8 or not.
std::string printable(std::string_view text);

// A caption as it is printed, and as a person types it: without the "&" before a mnemonic letter. "&&" is a plain
// one, and so is one with no letter behind it, as in "Save & Quit".
std::string printed_caption(std::string_view caption);

// Without the white space around it.
std::string_view trimmed(std::string_view text);

}  // namespace tavrik::front::terminal
