#include "toolkit/core/failure.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/launch.h"
#include "toolkit/core/path.h"
#include "toolkit/core/save_info.h"
#include "toolkit/core/special_folders.h"
#include "toolkit/core/streams.h"

#include <tavrik/exception.h>
#include <tavrik/folder_item.h>

#include <cerrno>
#include <utility>

namespace tavrik {
namespace {

using core::item_state;
using core::ItemState;
using core::Links;

constexpr mode_t kFolderMode = 0777;

// Where a copy goes: into a folder under the source's name, or to the path itself.
std::string target_of(const ItemState& source, const ItemState& destination) {
    struct stat status {};
    const int error = destination.files->look(destination.path, destination.links, status);
    const bool into = error == 0 && S_ISDIR(status.st_mode);
    return into ? core::join(destination.path, source.files->name_of(source.path)) : destination.path;
}

// The folder that relative paths count from.
std::string base_of(const ItemState& state) {
    struct stat status {};
    const bool is_folder = state.files->look(state.path, Links::kFollow, status) != 0 || S_ISDIR(status.st_mode);
    return is_folder ? state.path : std::string(core::folder_of(state.path));
}

bool is_there(const core::FileSystem& files, const std::string& path) {
    struct stat status {};
    return files.look(path, Links::kItself, status) == 0;
}

bool is_program(const std::string& path) {
    struct stat status {};
    return core::look_at(path, Links::kFollow, status) == 0 && S_ISREG(status.st_mode) && (status.st_mode & 0111) != 0;
}

void start(ItemState& state, const std::vector<std::string>& words) {
    // What other programs open is to have all that was written.
    core::flush_all_streams();
    state.done("opened on the desktop", core::start_program(words));
}

}  // namespace

void FolderItemCreateAsFolder(Object* item) {
    ItemState& state = item_state(item);
    state.done("created as a folder", state.files->make_folder(state.path, kFolderMode));
}

void FolderItemDelete(Object* item) {
    ItemState& state = item_state(item);
    state.done("deleted", state.files->remove(state.path));
}

void FolderItemCopyFileTo(Object* item, Object* destination) {
    ItemState& state = item_state(item);
    const ItemState& goal = item_state(destination);
    const std::string target = target_of(state, goal);
    core::flush_all_streams();
    const core::Outcome outcome = core::copy_item(state.location(), state.links, {*goal.files, target});
    state.done("copied", outcome.error, outcome.reason);
}

void FolderItemMoveFileTo(Object* item, Object* destination) {
    ItemState& state = item_state(item);
    const ItemState& goal = item_state(destination);
    std::string target = target_of(state, goal);
    core::flush_all_streams();
    const core::Outcome outcome = core::move_item(state.location(), {*goal.files, target});
    if (!state.done("moved", outcome.error, outcome.reason)) return;
    state.files = goal.files;
    state.name_anew(std::move(target));
}

void FolderItemLaunch(Object* item, bool activate) {
    ItemState& state = item_state(item);
    struct stat status {};
    state.last_error = 0;
    if (state.is_refused_inside("opened on the desktop") || !state.look(status)) return;
    std::vector<std::string> words = core::desktop_opener(activate);
    words.push_back(state.path);
    start(state, words);
}

void FolderItemLaunchWithParameters(Object* item, const String& parameters, bool activate) {
    ItemState& state = item_state(item);
    if (state.is_refused_inside("launched with parameters")) return;
    std::vector<std::string> words{state.path};
    std::string_view rest = parameters.view();
    bool malformed = false;
    while (auto word = core::take_shell_word(rest, malformed)) {
        words.push_back(word->starts_at_home ? core::home_folder() + word->bytes : std::move(word->bytes));
    }
    if (malformed) {
        state.done("launched", EINVAL, core::readable(parameters.view()).append(" isn't a list of words"));
    } else if (words.size() == 1) {
        FolderItemLaunch(item, activate);
    } else if (!is_program(state.path)) {
        // The desktop's openers take a file and nothing else.
        state.done("launched with parameters", is_there(*state.files, state.path) ? ENOEXEC : ENOENT);
    } else {
        start(state, words);
    }
}

void FolderItemImpMakeFileExecutable(Object* item) {
    ItemState& state = item_state(item);
    struct stat status {};
    int error = state.files->look(state.path, Links::kFollow, status);
    // Who may read may execute.
    const mode_t mode = (status.st_mode & 07777) | (status.st_mode & 0444) >> 2;
    if (error == 0) error = state.files->set_mode(state.path, Links::kFollow, mode);
    state.done("made executable", error);
}

String FolderItemGetSaveInfo(Object* item, Object* relative_to, std::int32_t mode) {
    const ItemState& state = item_state(item);
    if (mode != kSaveInfoRelativeFirst && mode != kSaveInfoAbsoluteFirst) {
        RuntimeRaise("UnsupportedFormatException", "save info has no mode " + std::to_string(mode));
    }
    if (state.path.empty()) return {};
    core::SaveInfo info{.absolute = state.files->full_path(state.path)};
    if (mode == kSaveInfoAbsoluteFirst) info.first = core::SaveInfo::First::kAbsolute;
    if (relative_to != nullptr && item_state(relative_to).files->volume() == state.files->volume()) {
        info.relative = core::relative_to(base_of(item_state(relative_to)), state.path);
    }
    return String(info.text());
}

Ref<Object> FolderItemGetRelative(Object* item, const String& save_info) {
    ItemState& state = item_state(item);
    const auto info = core::SaveInfo::parse(save_info.view());
    if (!info) {
        state.done("asked for what was saved", EINVAL, "the text isn't save info");
        return nullptr;
    }
    std::vector<std::string> paths;
    if (auto path = state.files->own_path(info->absolute)) paths.push_back(std::move(*path));
    if (!info->relative.empty()) {
        std::string relative = state.files->plain_path(core::join(base_of(state), info->relative));
        const bool first = info->first == core::SaveInfo::First::kRelative;
        paths.insert(first ? paths.begin() : paths.end(), std::move(relative));
    }
    state.last_error = 0;
    for (std::string& path : paths) {
        if (is_there(*state.files, path)) return core::make_folder_item_in(state.files, std::move(path));
    }
    state.done("asked for what was saved", ENOENT);
    return nullptr;
}

}  // namespace tavrik
