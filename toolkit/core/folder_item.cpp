#include "toolkit/core/folder_item.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/failure.h"
#include "toolkit/core/path.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/special_folders.h"

#include <tavrik/exception.h>
#include <tavrik/folder_item.h>
#include <tavrik/runtime.h>

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <utility>

namespace tavrik {
namespace {

using core::item_state;
using core::ItemState;
using core::Links;

struct Form {
    const char* name;
    std::optional<std::string> (*path)(std::string_view text);
};

std::optional<std::string> path_of_shell_word(std::string_view text) {
    bool malformed = false;
    const auto word = core::take_shell_word(text, malformed);
    // More than one word is no path.
    if (!word || core::take_shell_word(text, malformed) || malformed) return {};
    if (!word->starts_at_home) return word->bytes;
    return core::home_folder() + word->bytes;
}

// In the order of their codes.
constexpr Form kForms[] = {
    {"an absolute path", [](std::string_view text) { return std::optional(std::string(text)); }},
    {"a path for the shell", path_of_shell_word},
    {"a file's URL", core::path_of_url},
};

bool is_path(const std::optional<std::string>& path) {
    return path && !path->empty() && path->find('\0') == std::string::npos;
}

// An entry of a folder: nil where its link leads nowhere that could be named.
Ref<Object> make_entry(ItemState& folder, std::string path, Links links) {
    if (links == Links::kFollow) {
        if (!folder.done("followed", folder.files->follow_links(path))) return nullptr;
    }
    folder.last_error = 0;
    return core::make_folder_item_in(folder.files, std::move(path), links);
}

String name_of(const ItemState& state) { return String(state.files->name_of(state.path)); }

Ref<Object> child(Object* item, const String& name, Links links) {
    ItemState& state = item_state(item);
    if (!core::is_entry_name(name.view()) || state.path.empty()) {
        state.done("asked for an entry", state.path.empty() ? ENOENT : EINVAL);
        return nullptr;
    }
    return make_entry(state, core::join(state.path, name.view()), links);
}

Ref<Object> entry_at(Object* item, std::int32_t position, Links links) {
    ItemState& state = item_state(item);
    std::string name;
    const int error =
        position < 1 ? ENOENT
                     : state.listing.name_at(*state.files, state.path, static_cast<std::size_t>(position) - 1, name);
    if (!state.done("asked for an entry", error)) return nullptr;
    return make_entry(state, core::join(state.path, name), links);
}

}  // namespace

namespace core {

Ref<Object> make_folder_item(std::string_view path, Links links) {
    return make_folder_item_in(disk(), absolute_path(path), links);
}

Ref<Object> make_folder_item_in(const FileSystemPointer& files, std::string path, Links links) {
    Ref<Object> item = RuntimeNewObject(need_class("FolderItem"));
    ItemState& state = item_state(item.object());
    state.files = files;
    state.path = std::move(path);
    state.links = links;
    return item;
}

ItemState& item_state(Object* item) {
    if (item == nullptr) RaiseNilObjectException();
    if (item->native == nullptr) item->native = new ItemState;
    return *native<ItemState>(item);
}

bool ItemState::done(std::string_view not_done, int error) {
    last_error = error;
    if (error != 0) EventScope::note_failure(describe_failure(files->name_of(path), not_done, error));
    return error == 0;
}

bool ItemState::done(std::string_view not_done, int error, std::string_view reason) {
    if (error == 0 || reason.empty()) return done(not_done, error);
    last_error = error;
    EventScope::note_failure(describe_failure(files->name_of(path), not_done, reason));
    return false;
}

bool ItemState::look(struct stat& status) {
    const int error = files->look(path, links, status);
    return error == 0 || done("looked at", error);
}

void ItemState::name_anew(std::string new_path) {
    path = std::move(new_path);
    listing.forget();
}

bool ItemState::is_refused_inside(std::string_view not_done) {
    return is_inside() && !done(not_done, ENOTSUP, "it lies in a virtual volume");
}

}  // namespace core

void FolderItemPathCtorNoParams(Object* item) {
    ItemState& state = item_state(item);
    state.files = core::disk();
    state.name_anew(core::absolute_path("."));
    state.links = Links::kFollow;
}

void FolderItemPathCtor(Object* item, const String& path, std::int32_t form) {
    ItemState& state = item_state(item);
    if (form < kPathAbsolute || form > kPathURL) {
        RuntimeRaise("UnsupportedFormatException", "paths have no form " + std::to_string(form));
    }
    const auto named = kForms[form].path(path.view());
    if (!is_path(named)) {
        RuntimeRaise("UnsupportedFormatException",
                     "\"" + core::readable(path.view()) + "\" isn't " + kForms[form].name);
    }
    state.files = core::disk();
    state.name_anew(core::absolute_path(*named));
    state.links = Links::kFollow;
}

void FolderItemCopyCtor(Object* item, Object* other) {
    const ItemState& source = item_state(other);
    ItemState& state = item_state(item);
    state.files = source.files;
    state.name_anew(source.path);
    state.links = source.links;
}

void FolderItemDestructor(Object* item) { delete std::exchange(item->native, nullptr); }

Ref<Object> FolderItemItem(Object* item, std::int32_t position) { return entry_at(item, position, Links::kFollow); }
Ref<Object> FolderItemTrueItem(Object* item, std::int32_t position) { return entry_at(item, position, Links::kItself); }
Ref<Object> FolderChild(Object* item, const String& name) { return child(item, name, Links::kFollow); }
Ref<Object> FolderTrueChild(Object* item, const String& name) { return child(item, name, Links::kItself); }

Ref<Object> folderParentGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    if (state.path.empty() || state.path == "/") return nullptr;
    return core::make_folder_item_in(state.files, std::string(core::folder_of(state.path)));
}

Ref<Object> folderFindFolder(Object* item, std::int32_t code) {
    const ItemState& state = item_state(item);
    const auto path = core::special_folder(code, state.files->path_on_disk(state.path));
    if (!path) return nullptr;
    return core::make_folder_item(*path);
}

String fileAbsolutePathGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    return String(state.files->full_path(state.path));
}
String fileNameGetter(Object* item, std::int32_t) { return name_of(item_state(item)); }
String FileDisplayNameGetter(Object* item, std::int32_t) {
    return String(core::readable(name_of(item_state(item)).view()));
}
String FileShellPathGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    return state.is_inside() ? String() : String(core::shell_quoted(state.path));
}
String FileURLGetter(Object* item, std::int32_t) {
    const ItemState& state = item_state(item);
    return state.is_inside() ? String() : String(core::url_of(state.path));
}

std::int32_t FolderItemGetLastError(Object* item, std::int32_t) { return item_state(item).last_error; }
void FolderItemSetLastError(Object* item, std::int32_t, std::int32_t error) { item_state(item).last_error = error; }

}  // namespace tavrik
