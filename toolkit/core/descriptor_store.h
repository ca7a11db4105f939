#pragma once

#include "toolkit/core/byte_store.h"

#include <memory>

namespace tavrik::core {

// A descriptor that somebody else has opened: a file at its own offset, a pipe, a socket, a terminal. The store takes
// it over and closes it, except for the three that every process begins with.
class DescriptorStore final : public ByteStore {
public:
    // nullptr if it isn't open, with the error.
    static std::unique_ptr<DescriptorStore> open(int descriptor, int& error);

    ~DescriptorStore() override;

    // Where a file's own offset stood at first.
    std::uint64_t start() const { return start_; }

    bool is_sequential() const override { return sequential_; }
    int descriptor() const override { return descriptor_; }
    std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) override;
    int write(std::uint64_t position, std::string_view bytes) override;
    std::uint64_t length(int& error) override;
    int set_length(std::uint64_t length) override;
    int close() override;

private:
    DescriptorStore(int descriptor, int flags);

    int descriptor_;
    bool appends_;
    bool sequential_ = false;
    std::uint64_t start_ = 0;
};

}  // namespace tavrik::core
