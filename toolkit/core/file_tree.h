#pragma once

#include "toolkit/core/file_place.h"

#include <functional>
#include <string>
#include <string_view>

// Files and whole folders: what is at a path is copied, moved and removed. Nothing is ever replaced, and nothing stands
// half-made under its own name: it is made under another one, brought to the disk, and renamed.
namespace tavrik::core {

struct Outcome {
    int error = 0;       // the system's number, 0 for none
    std::string reason;  // where the number alone doesn't tell
};

// Copies a file, a folder with all that is in it, or with Links::kItself a link. Links inside a folder are copied as
// links. What can't be copied whole isn't copied at all.
Outcome copy_tree(const std::string& from, Links links, const std::string& to);
// Moves what is at the path itself, to another file system by copying it. If the copy fails, or the source
// can't be removed at all, everything is as it was.
Outcome move_tree(const std::string& from, const std::string& to);

// Makes something under another name in the folder of a place, and renames it.
using Making = std::function<Outcome(const Descriptor& folder, const std::string& name)>;
Outcome make_and_rename(const Place& target, const Making& make);

// Renames, unless there is something by the new name.
int rename_in_place(int from_folder, const char* from, int to_folder, const char* to);

// Deletes a file, a link or an empty folder.
int remove_entry(const Place& place);
// Deletes with all that is in it, without following a link.
int remove_tree(const Descriptor& folder, const std::string& name);
// The same for a place; `touched` tells after an error whether something of it may be gone.
int remove_at_once(const Place& source, bool& touched);

// Brings all of a file system to the disk, or of the folder where the system can't.
int sync_all(const Descriptor& folder);

// A name that nothing has by chance.
std::string temporary_name();

}  // namespace tavrik::core
