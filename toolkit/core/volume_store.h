#pragma once

#include "toolkit/core/file_system.h"

#include <memory>
#include <string>

namespace tavrik::core {

// An open file of a volume. What is written lies in memory until it is kept.
class VolumeStore final : public ByteStore {
public:
    VolumeStore(std::string description, std::unique_ptr<volume::File> file, Opening opening);
    ~VolumeStore() override;

    std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) override;
    int write(std::uint64_t position, std::string_view bytes) override;
    std::uint64_t length(int& error) override;
    int set_length(std::uint64_t length) override;
    int keep() override;
    int close() override { return keep(); }

private:
    std::unique_ptr<volume::File> file_;
    bool appends_;
};

}  // namespace tavrik::core
