#pragma once

#include <optional>
#include <string>
#include <string_view>

// Paths as bytes, without a look at the file system. The separator is "/"; every other byte but 0 may stand in a name.
namespace tavrik::core {

// Whether it can be the name of an entry of a folder.
bool is_entry_name(std::string_view name);

std::string join(std::string_view folder, std::string_view name);
// The last name of a path; "/" for the root, and nothing for no path.
std::string_view name_of(std::string_view path);
// The path of the folder around it; the root's is the root.
std::string_view folder_of(std::string_view path);

// An absolute path without double separators, "." and a separator at its end. A relative one counts from `folder`.
// ".." stays, since what it leads to is the file system's to tell.
std::string absolute(std::string_view path, std::string_view folder);

// How to get from a folder to a path, both absolute, with ".." where need be.
std::string relative_to(std::string_view folder, std::string_view path);

// "file:///" addresses: every byte that isn't plain is escaped, so any path has one.
std::string url_of(std::string_view path);
// Nothing for what is no file address of this machine.
std::optional<std::string> path_of_url(std::string_view url);
// The same escapes without the address around them.
std::string percent_escaped(std::string_view bytes);
std::optional<std::string> percent_unescaped(std::string_view text);

// One word as a shell takes it.
std::string shell_quoted(std::string_view bytes);
// The words of a line, with quotes and backslashes taken off. Nothing for a line that a shell would do more with.
struct ShellWord {
    std::string bytes;
    bool starts_at_home = false;  // an unquoted "~" alone, or in front of "/"
};
// Takes a word off the front of the line; nothing at its end, or with `malformed` set.
std::optional<ShellWord> take_shell_word(std::string_view& line, bool& malformed);

}  // namespace tavrik::core
