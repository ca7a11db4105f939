#include "toolkit/core/volumes.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/failure.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"
#include "toolkit/volume/choose.h"

#include <tavrik/exception.h>
#include <tavrik/folder_item.h>
#include <tavrik/runtime.h>
#include <tavrik/virtual_volume.h>

#include <sys/stat.h>

#include <cerrno>
#include <map>
#include <utility>

namespace tavrik {
namespace {

using volume::Mode;
using volume::Volume;

struct VolumeState : NativeState {
    explicit VolumeState(std::shared_ptr<Volume> opened) : volume(std::move(opened)) {}

    std::shared_ptr<Volume> volume;
};

volume::OpenVolume need_open_volume() {
    static const volume::OpenVolume open = volume::find_open_volume();
    if (open == nullptr) RuntimeRaise("ServiceNotAvailableException", "this program has no virtual volumes");
    return open;
}

// The volumes that are open, by device and inode.
std::map<std::pair<dev_t, ino_t>, std::weak_ptr<Volume>>& open_volumes() {
    static auto* const all = new std::map<std::pair<dev_t, ino_t>, std::weak_ptr<Volume>>;
    return *all;
}

std::shared_ptr<Volume> find_open(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return nullptr;
    const auto found = open_volumes().find({status.st_dev, status.st_ino});
    return found == open_volumes().end() ? nullptr : found->second.lock();
}

volume::Opened open_once(volume::OpenVolume open, const std::string& path, Mode mode) {
    volume::Opened opened;
    opened.volume = find_open(path);
    if (opened.volume && mode == Mode::kOpen) return opened;
    if (opened.volume) return {.volume = nullptr, .error = EEXIST, .reason = "it is an open volume"};
    open(path, mode, opened);
    std::erase_if(open_volumes(), [](const auto& entry) { return entry.second.expired(); });
    if (opened.volume) open_volumes()[opened.volume->identity()] = opened.volume;
    return opened;
}

Ref<Object> make_opened(const std::string& path, Mode mode, int& error) {
    const volume::OpenVolume open = need_open_volume();
    volume::Opened opened = core::on_main_stack([&] { return open_once(open, path, mode); });
    error = opened.error;
    if (opened.volume) return core::make_virtual_volume(std::move(opened.volume));

    const std::string_view not_done = mode == Mode::kCreate ? "made a volume" : "opened as a volume";
    std::string sentence = core::describe_failure(path, not_done, opened.reason);
    if (opened.is_foreign) RuntimeRaise("UnsupportedFormatException", sentence);
    core::EventScope::note_failure(std::move(sentence));
    return nullptr;
}

Ref<Object> volume_of(Object* item, std::string_view not_done,
                      Ref<Object> (*open)(const std::string& path, int& error)) {
    core::ItemState& state = core::item_state(item);
    if (state.is_refused_inside(not_done)) return nullptr;
    return open(state.path, state.last_error);
}

}  // namespace

namespace core {

Ref<Object> open_virtual_volume(const std::string& path, int& error) { return make_opened(path, Mode::kOpen, error); }

Ref<Object> create_virtual_volume(const std::string& path, int& error) {
    return make_opened(path, Mode::kCreate, error);
}

Ref<Object> make_virtual_volume(std::shared_ptr<Volume> volume) {
    Ref<Object> object = RuntimeNewObject(need_class("VirtualVolume"));
    object->native = new VolumeState(std::move(volume));
    return object;
}

}  // namespace core

void VirtVolDestructor(Object* volume) { delete std::exchange(volume->native, nullptr); }

Ref<Object> VirtVolRootGetter(Object* volume, std::int32_t) {
    if (volume == nullptr) RaiseNilObjectException();
    if (volume->native == nullptr) return nullptr;
    return core::make_folder_item_in(core::file_system_of(native<VolumeState>(volume)->volume), "/");
}

Ref<Object> FolderItemCreateVirtualVolume(Object* item) {
    return volume_of(item, "made a volume", core::create_virtual_volume);
}

Ref<Object> FolderItemOpenAsVirtualVolume(Object* item) {
    return volume_of(item, "opened as a volume", core::open_virtual_volume);
}

Ref<Object> folderVirtVolGetter(Object* item, std::int32_t) {
    std::shared_ptr<Volume> volume = core::item_state(item).files->volume();
    return volume ? core::make_virtual_volume(std::move(volume)) : nullptr;
}

}  // namespace tavrik
