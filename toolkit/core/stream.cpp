#include "toolkit/core/stream.h"

#include "toolkit/core/descriptor_store.h"
#include "toolkit/core/event_scope.h"
#include "toolkit/core/failure.h"
#include "toolkit/core/streams.h"
#include "toolkit/core/string_room.h"

#include <tavrik/exception.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

namespace tavrik::core {
namespace {

// Every stream that lives, so that all can be flushed; and what went wrong in those that have ended.
struct Streams {
    std::vector<Stream*> living;
    std::vector<std::string> failures;
};

Streams& streams() {
    static auto* const all = new Streams;
    return *all;
}

StreamError error_for_write(int error) {
    if (error == ESPIPE) return StreamError::kNoPosition;
    return error == ENOSPC || error == EDQUOT || error == EFBIG ? StreamError::kNoRoom : StreamError::kWriteFailed;
}

}  // namespace

Stream::Stream(StreamWindow& window) : buffer_(window), description_("the stream") { streams().living.push_back(this); }

Stream::~Stream() {
    close();
    if (unread_) streams().failures.push_back(std::move(failure_));
    std::erase(streams().living, this);
}

void Stream::open(std::unique_ptr<ByteStore> store, std::uint64_t position, std::span<char> room) {
    close();
    if (unread_) streams().failures.push_back(std::move(failure_));
    unread_ = false;
    error_ = StreamError::kNone;
    description_ = store->description();
    buffer_.open(std::move(store), position, room);
}

void Stream::open_handle(std::int32_t handle, std::int32_t type, std::span<char> room) {
    if (type != kHandleOfDescriptor) {
        RuntimeRaise("UnsupportedFormatException", "streams have no handles of type " + std::to_string(type));
    }
    int error = 0;
    std::unique_ptr<DescriptorStore> store = DescriptorStore::open(handle, error);
    if (store == nullptr) {
        close();
        description_ = "descriptor " + std::to_string(handle);
        return fail(StreamError::kNotOpen, "opened", error);
    }
    const std::uint64_t start = store->start();
    open(std::move(store), start, room);
}

std::int32_t Stream::handle(std::int32_t type) const {
    return buffer_.is_open() && type == kHandleOfDescriptor ? buffer_.store().descriptor() : -1;
}

void Stream::close() {
    if (buffer_.is_open()) note_write(buffer_.close());
}

bool Stream::read(std::span<char> bytes) {
    const std::uint64_t before = position();
    const std::size_t count = read_some(bytes);
    if (count == bytes.size()) return true;
    if (count > 0 && !buffer_.store().is_sequential()) buffer_.set_position(before);
    return false;
}

std::size_t Stream::read_some(std::span<char> bytes) {
    if (!need_open()) return 0;
    int error = 0;
    const std::size_t count = buffer_.read(bytes, error);
    if (!failed_to_read(error) && count < bytes.size()) note_end();
    return count;
}

String Stream::read_text(std::size_t count, std::uint32_t encoding) {
    if (!need_open()) return {};
    const std::uint64_t end = buffer_.store().is_sequential() ? 0 : length();
    const std::uint64_t left = end > position() ? end - position() : 0;
    if (left == 0) {
        const std::string bytes = read_growing(count);
        return bytes.empty() ? String() : String::adopt(RuntimeNewString(bytes.data(), bytes.size(), encoding));
    }
    const std::size_t room = std::min<std::uint64_t>(left, count);
    const String text = String::adopt(new_string_room(room, encoding));
    const std::size_t read = read_some({text.record()->text + 1, room});
    if (room < count) note_end();
    if (read == 0) return {};
    shorten(text.record(), read);
    return text;
}

// Where no length tells how many bytes there are.
std::string Stream::read_growing(std::size_t count) {
    constexpr std::size_t kPiece = std::size_t{64} * 1024;
    std::string bytes;
    std::size_t read = 0;
    do {
        bytes.resize(std::min(count, read + kPiece));
        read += read_some(std::span(bytes).subspan(read));
    } while (read == bytes.size() && read < count);
    bytes.resize(read);
    return bytes;
}

void Stream::write(std::string_view bytes) {
    if (!need_open()) return;
    if (!buffer_.store().writable()) return fail(StreamError::kReadOnly, "written", EBADF);
    note_write(buffer_.write(bytes));
}

void Stream::flush() {
    if (buffer_.is_open()) note_write(buffer_.keep());
}

// At the end of an event: nothing is held back, and nothing old is kept.
void Stream::settle() {
    flush();
    if (buffer_.is_open()) buffer_.forget_read();
}

std::uint64_t Stream::length() {
    if (!buffer_.is_open()) return 0;
    int error = 0;
    const std::uint64_t length = buffer_.length(error);
    failed_to_read(error);
    return length;
}

void Stream::set_length(std::uint64_t length) {
    if (!need_open()) return;
    if (!buffer_.store().writable()) return fail(StreamError::kReadOnly, "written", EBADF);
    note_write(buffer_.set_length(length));
}

void Stream::set_position(std::uint64_t position) {
    if (error_ == StreamError::kEndOfData) error_ = StreamError::kNone;
    const int error = buffer_.set_position(position);
    if (error == ESPIPE) return fail(StreamError::kNoPosition, "positioned", error);
    note_write(error);
}

bool Stream::at_end() {
    if (!buffer_.is_open()) return true;
    int error = 0;
    const bool is_at_end = buffer_.at_end(error);
    return failed_to_read(error) || is_at_end;
}

StreamError Stream::take_error() {
    unread_ = false;
    return error_;
}

bool Stream::take_unread(std::string& failure) {
    if (!unread_) return false;
    unread_ = false;
    failure = failure_;
    return true;
}

bool Stream::need_open() {
    if (buffer_.is_open()) return true;
    note(StreamError::kNotOpen, describe_failure(description_, "used", "it is not open"));
    return false;
}

bool Stream::failed_to_read(int error) {
    if (error != 0) fail(StreamError::kReadFailed, "read", error);
    return error != 0;
}

void Stream::note_write(int error) {
    if (error != 0) fail(error_for_write(error), "written", error);
}

void Stream::fail(StreamError error, std::string_view not_done, int system_error) {
    note(error, describe_failure(description_, not_done, system_error));
}

void Stream::note_end() {
    if (error_ != StreamError::kNone) return;
    const std::string place = "read at byte " + std::to_string(position());
    note(StreamError::kEndOfData, describe_failure(description_, place, "there are no more bytes"));
}

void Stream::note_quiet_end() {
    if (error_ == StreamError::kNone) error_ = StreamError::kEndOfData;
}

void Stream::note(StreamError error, std::string failure) {
    error_ = error;
    unread_ = true;
    failure_ = std::move(failure);
    EventScope::note_failure(failure_);
}

void flush_all_streams() {
    for (Stream* const stream : streams().living) stream->settle();
}

std::vector<std::string> take_unread_stream_failures() {
    std::vector<std::string> failures = std::exchange(streams().failures, {});
    for (Stream* const stream : streams().living) {
        std::string failure;
        if (stream->take_unread(failure)) failures.push_back(std::move(failure));
    }
    return failures;
}

}  // namespace tavrik::core
