#pragma once

#include "toolkit/fronts/terminal/window_view.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// What a line names, white space around it taken off, letter case ignored.
namespace tavrik::front::terminal {

// The control's place in tab order, by its number or its caption; a number wins over a caption that looks like it,
// and among controls of one caption the first that can be used.
std::optional<std::size_t> find_control(std::string_view words, std::span<const ControlView> controls);

// "menu 2" asks for the contextual menu of a control: what stands behind the word; empty in any other line.
std::string_view behind_menu(std::string_view words);

// The entry by its whole path, "Menu/Entry", by the same rule where two have the same path; nullptr: none has it.
const MenuEntry* find_entry(std::string_view words, std::span<const MenuEntry> entries);

// The same, or by its number from 1 on, which wins.
const MenuEntry* find_numbered_entry(std::string_view words, std::span<const MenuEntry> entries);

// The index of a message's button, by its caption.
std::optional<std::size_t> find_caption(std::string_view words, std::span<const std::string> captions);

}  // namespace tavrik::front::terminal
