#include "toolkit/core/descriptor_store.h"

#include "toolkit/core/descriptor_calls.h"

#include <fcntl.h>
#include <unistd.h>

namespace tavrik::core {

std::unique_ptr<DescriptorStore> DescriptorStore::open(int descriptor, int& error) {
    const int flags = ::fcntl(descriptor, F_GETFL);
    error = flags < 0 ? errno : 0;
    if (error != 0) return nullptr;
    return std::unique_ptr<DescriptorStore>(new DescriptorStore(descriptor, flags));
}

DescriptorStore::DescriptorStore(int descriptor, int flags)
    : ByteStore("descriptor " + std::to_string(descriptor), (flags & O_ACCMODE) != O_RDONLY),
      descriptor_(descriptor),
      appends_((flags & O_APPEND) != 0) {
    const off_t offset = ::lseek(descriptor, 0, SEEK_CUR);
    sequential_ = offset < 0;
    start_ = sequential_ ? 0 : static_cast<std::uint64_t>(offset);
}

DescriptorStore::~DescriptorStore() { DescriptorStore::close(); }

std::size_t DescriptorStore::read(std::uint64_t position, std::span<char> bytes, int& error) {
    return sequential_ ? read_next(descriptor_, bytes, error) : read_at(descriptor_, position, bytes, error);
}

int DescriptorStore::write(std::uint64_t position, std::string_view bytes) {
    return sequential_ || appends_ ? write_next(descriptor_, bytes) : write_at(descriptor_, position, bytes);
}

std::uint64_t DescriptorStore::length(int& error) {
    error = 0;
    return sequential_ ? 0 : length_of(descriptor_, error);
}

int DescriptorStore::set_length(std::uint64_t length) {
    return sequential_ ? ESPIPE : set_length_of(descriptor_, length);
}

int DescriptorStore::close() {
    const int closed = std::exchange(descriptor_, -1);
    return closed <= STDERR_FILENO ? 0 : close_descriptor(closed);
}

}  // namespace tavrik::core
