#pragma once

#include "toolkit/core/byte_store.h"

#include <tavrik/stream_access.h>

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace tavrik::core {

// A store at a position. Reads come through a buffer, and neighbouring writes are gathered in it; memory is read and
// written at once. Errors are the system's numbers, 0 for none. A failed write drops what was gathered.
class StreamBuffer {
public:
    // The window shows what lies in the buffer, for code that reads and writes there without a call.
    explicit StreamBuffer(StreamWindow& window) : window_(window) {}

    // `room` is the buffer, and belongs to the caller; without any the buffer has room of its own.
    void open(std::unique_ptr<ByteStore> store, std::uint64_t position, std::span<char> room = {});
    int close();
    bool is_open() const { return store_ != nullptr; }
    const ByteStore& store() const { return *store_; }

    // How many bytes were read: fewer only at the end of the data or with an error.
    std::size_t read(std::span<char> bytes, int& error);
    // The next bytes, as many as wanted if there are, and more if they lie in the buffer. Not for memory, unless the
    // room was given. No more than kPeek.
    std::string_view peek(std::size_t wanted, int& error);
    static constexpr std::size_t kPeek = 64;
    // Passes over bytes that peek has shown.
    void skip(std::size_t count) { window_.cursor += count; }

    int write(std::string_view bytes);
    int flush();
    // The same, and the store keeps it for good.
    int keep();
    // What has been read ahead may be old by now, where others write too.
    void forget_read();

    std::uint64_t position() const { return base_ + static_cast<std::uint64_t>(window_.cursor - begin()); }
    int set_position(std::uint64_t position);
    std::uint64_t length(int& error);
    int set_length(std::uint64_t length);
    bool at_end(int& error);

private:
    char* begin() const { return room_.data(); }
    std::size_t ahead() const;
    bool is_writing() const { return window_.write_end > begin(); }
    std::size_t room_to_gather() const { return static_cast<std::size_t>(window_.write_end - window_.cursor); }
    void start_at(std::uint64_t position);
    void gather_at(std::uint64_t position);
    int begin_reading();
    int begin_writing();
    std::size_t fill(std::size_t wanted, int& error);

    StreamWindow& window_;
    std::unique_ptr<ByteStore> store_;
    std::unique_ptr<char[]> own_room_;
    std::span<char> room_;
    std::uint64_t base_ = 0;  // where the buffer begins
    std::size_t read_ahead_ = 0;
    std::string unread_;  // of a pair of pipes, while it is written to
};

}  // namespace tavrik::core
