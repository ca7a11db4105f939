#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tavrik::core {

// Where the bytes of a stream lie. It holds nothing back: what has been written is there for all who read. Errors are
// the system's numbers, 0 for none.
class ByteStore {
public:
    ByteStore(std::string description, bool writable) : description_(std::move(description)), writable_(writable) {}
    ByteStore(const ByteStore&) = delete;
    ByteStore& operator=(const ByteStore&) = delete;
    virtual ~ByteStore() = default;

    // A path, or what else names it in a message.
    const std::string& description() const { return description_; }
    bool writable() const { return writable_; }

    // Others may change the bytes between two calls, and a call costs little: no copy of them is kept.
    virtual bool is_memory() const { return false; }
    // Bytes come and go in order, without a position or a length.
    virtual bool is_sequential() const { return false; }
    virtual int descriptor() const { return -1; }

    // At least one byte where there is one; 0 at the end or with an error.
    virtual std::size_t read(std::uint64_t position, std::span<char> bytes, int& error) = 0;
    // All of them, or an error.
    virtual int write(std::uint64_t position, std::string_view bytes) = 0;
    virtual std::uint64_t length(int& error) = 0;
    virtual int set_length(std::uint64_t length) = 0;
    // Stores for good what isn't yet. After an error it can be tried again.
    virtual int keep() { return 0; }
    virtual int close() { return 0; }

protected:
    ByteStore(ByteStore&& other) noexcept = default;

private:
    std::string description_;
    bool writable_;
};

}  // namespace tavrik::core
