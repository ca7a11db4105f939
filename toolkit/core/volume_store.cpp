#include "toolkit/core/volume_store.h"

#include "toolkit/core/scheduler.h"

#include <utility>

namespace tavrik::core {

VolumeStore::VolumeStore(std::string description, std::unique_ptr<volume::File> file, Opening opening)
    : ByteStore(std::move(description), opening != Opening::kRead),
      file_(std::move(file)),
      appends_(opening == Opening::kAppend) {}

VolumeStore::~VolumeStore() {
    on_main_stack([&] { file_.reset(); });
}

std::size_t VolumeStore::read(std::uint64_t position, std::span<char> bytes, int& error) {
    return on_main_stack([&] { return file_->read(position, bytes, error); });
}

int VolumeStore::write(std::uint64_t position, std::string_view bytes) {
    return on_main_stack([&] {
        int error = 0;
        const std::uint64_t at = appends_ ? file_->length(error) : position;
        return error != 0 ? error : file_->write(at, bytes);
    });
}

std::uint64_t VolumeStore::length(int& error) {
    return on_main_stack([&] { return file_->length(error); });
}

int VolumeStore::set_length(std::uint64_t length) {
    return on_main_stack([&] { return file_->set_length(length); });
}

int VolumeStore::keep() {
    return on_main_stack([&] { return file_->flush(); });
}

}  // namespace tavrik::core
