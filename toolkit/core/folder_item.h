#pragma once

#include "toolkit/core/file_system.h"
#include "toolkit/core/folder_listing.h"

#include <tavrik/object.h>

#include <sys/stat.h>

#include <memory>
#include <string>
#include <string_view>

namespace tavrik::core {

// A new FolderItem for a path, given as the bytes that the file system has. With Links::kItself it is the link there.
Ref<Object> make_folder_item(std::string_view path, Links links = Links::kFollow);
// The same for an absolute path in what other items lie in.
Ref<Object> make_folder_item_in(const FileSystemPointer& files, std::string path, Links links = Links::kFollow);

// What the toolkit keeps with an item.
struct ItemState : NativeState {
    FileSystemPointer files = disk();
    std::string path;  // absolute; empty where nothing is named
    Links links = Links::kFollow;
    std::int32_t last_error = 0;
    FolderListing listing;

    // Sets LastErrorCode, and takes a note of a failure. True if there is none.
    bool done(std::string_view not_done, int error);
    bool done(std::string_view not_done, int error, std::string_view reason);
    // What is there; a failure is noted.
    bool look(struct stat& status);
    void name_anew(std::string new_path);
    // Where an item lies inside of a volume, sets LastErrorCode: only the disk can do that.
    bool is_refused_inside(std::string_view not_done);
    bool is_inside() const { return files->volume() != nullptr; }
    Location location() const { return {*files, path}; }
};

// Raises NilObjectException for nil.
ItemState& item_state(Object* item);

}  // namespace tavrik::core
