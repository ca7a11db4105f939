#pragma once

#include <tavrik/object.h>

#include <string>

namespace tavrik::core {

// A new FolderItem for a path, given as the bytes that the file system has.
Ref<Object> make_folder_item(std::string path);

}  // namespace tavrik::core
