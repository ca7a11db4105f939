#pragma once

#include "toolkit/fronts/terminal/window_view.h"

#include <span>
#include <string>

// What is in front as the lines that are printed of it, each with its line end.
namespace tavrik::front::terminal {

std::string window_text(const WindowView& window);
std::string menu_text(std::span<const MenuEntry> entries);
std::string message_text(const MessageDescription& message);
std::string file_choice_text(const FileChoice& choice);

// The last line of file_choice_text(), which also stands behind the reason why a path was turned down.
std::string path_prompt(const FileChoice& choice);

}  // namespace tavrik::front::terminal
