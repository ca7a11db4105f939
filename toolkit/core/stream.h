#pragma once

#include "toolkit/core/stream_buffer.h"

#include <tavrik/object.h>
#include <tavrik/stream_error.h>
#include <tavrik/string.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace tavrik::core {

// What all classes of streams have in common: bytes at a position, the last error, and a place among the streams that
// are flushed at the end of each event.
class Stream : public NativeState {
public:
    explicit Stream(StreamWindow& window);
    ~Stream() override;

    // Closes what was open, and forgets its error.
    void open(std::unique_ptr<ByteStore> store, std::uint64_t position = 0, std::span<char> room = {});
    // Over a descriptor, as the contract says of the constructors by handle.
    void open_handle(std::int32_t handle, std::int32_t type, std::span<char> room = {});
    std::int32_t handle(std::int32_t type) const;
    void close();

    bool read(std::span<char> bytes);
    // As many bytes as there are, up to the number wanted; fewer set the error.
    std::size_t read_some(std::span<char> bytes);
    // The same as a string. Takes no more memory than there are bytes.
    String read_text(std::size_t count, std::uint32_t encoding);
    void write(std::string_view bytes);
    void flush();
    void settle();

    std::uint64_t length();
    void set_length(std::uint64_t length);
    std::uint64_t position() const { return buffer_.position(); }
    void set_position(std::uint64_t position);
    bool at_end();

    StreamError take_error();
    bool take_unread(std::string& failure);

protected:
    StreamBuffer& buffer() { return buffer_; }
    // False, and an error, unless it is open.
    bool need_open();
    // True, and an error, if there is one.
    bool failed_to_read(int error);
    // The end was reached where nobody need be told.
    void note_quiet_end();

private:
    std::string read_growing(std::size_t count);
    void note_write(int error);
    void fail(StreamError error, std::string_view not_done, int system_error);
    void note_end();
    void note(StreamError error, std::string failure);

    StreamBuffer buffer_;
    std::string description_;
    StreamError error_ = StreamError::kNone;
    bool unread_ = false;
    std::string failure_;
};

// What the toolkit keeps with an object of a stream class: `Room` is what the class gives it room for.
template <class State, class Room>
State& stream_state(Object* object) {
    if (object == nullptr) RaiseNilObjectException();
    if (object->native == nullptr) object->native = new State(static_cast<Room*>(object)->window);
    return *native<State>(object);
}

}  // namespace tavrik::core
