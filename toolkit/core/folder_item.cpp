#include "toolkit/core/folder_item.h"

#include "toolkit/core/binary_stream.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/failure.h"
#include "toolkit/core/file_store.h"
#include "toolkit/core/reflection.h"

#include <tavrik/folder_item.h>
#include <tavrik/runtime.h>

#include <cerrno>
#include <filesystem>
#include <utility>

namespace tavrik {
namespace {

struct ItemState : NativeState {
    std::string path;
    int last_error = 0;
};

ItemState& state_of(Object* item) {
    if (item == nullptr) RaiseNilObjectException();
    if (item->native == nullptr) item->native = new ItemState;
    return *native<ItemState>(item);
}

}  // namespace

namespace core {

Ref<Object> make_folder_item(std::string path) {
    Ref<Object> item = RuntimeNewObject(need_class("FolderItem"));
    state_of(item.object()).path = std::move(path);
    return item;
}

}  // namespace core

void FolderItemDestructor(Object* item) { delete std::exchange(item->native, nullptr); }

Ref<Object> FolderItemOpenBinaryFile(Object* item, bool write) {
    ItemState& state = state_of(item);
    auto opened = core::FileStore::open(state.path, write);
    state.last_error = 0;
    if (opened.file) return core::make_binary_stream(std::move(*opened.file));

    const std::string_view not_done = write ? "opened for writing" : "opened";
    // A file that is no file has no number of the system's own; this one comes closest.
    state.last_error = opened.error == 0 ? EINVAL : opened.error;
    core::EventScope::note_failure(opened.error == 0 ? core::describe_failure(state.path, not_done, opened.reason)
                                                     : core::describe_failure(state.path, not_done, opened.error));
    return nullptr;
}

String fileAbsolutePathGetter(Object* item, std::int32_t) {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::absolute(state_of(item).path, error);
    return String(std::string_view(error ? state_of(item).path : path.native()));
}

String fileNameGetter(Object* item, std::int32_t) {
    return String(std::string_view(std::filesystem::path(state_of(item).path).filename().native()));
}

std::int32_t FolderItemGetLastError(Object* item, std::int32_t) { return state_of(item).last_error; }
void FolderItemSetLastError(Object* item, std::int32_t, std::int32_t error) { state_of(item).last_error = error; }

}  // namespace tavrik
