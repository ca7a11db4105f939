#include "toolkit/core/stream_buffer.h"

#include "toolkit/core/descriptor_calls.h"

#include <algorithm>
#include <cstring>

namespace tavrik::core {
namespace {

constexpr std::size_t kRoom = std::size_t{64} * 1024;
// After a jump little is read ahead, and more each time that the reads go on from there.
constexpr std::size_t kLeastAhead = std::size_t{4} * 1024;

}  // namespace

void StreamBuffer::open(std::unique_ptr<ByteStore> store, std::uint64_t position, std::span<char> room) {
    store_ = std::move(store);
    room_ = room;
    if (room.empty() && !store_->is_memory()) {
        own_room_ = std::make_unique_for_overwrite<char[]>(kRoom);
        room_ = {own_room_.get(), kRoom};
    }
    start_at(position);
}

int StreamBuffer::close() {
    const int flushed = flush();
    const int closed = store_->close();
    base_ = position();
    room_ = {};
    window_ = {};
    own_room_ = nullptr;
    store_ = nullptr;
    unread_.clear();
    return flushed != 0 ? flushed : closed;
}

void StreamBuffer::start_at(std::uint64_t position) {
    base_ = position;
    window_ = {begin(), begin(), begin()};
    read_ahead_ = kLeastAhead;
}

std::size_t StreamBuffer::ahead() const {
    return window_.read_end > window_.cursor ? static_cast<std::size_t>(window_.read_end - window_.cursor) : 0;
}

int StreamBuffer::begin_reading() {
    if (!is_writing()) return 0;
    const int error = flush();
    start_at(position());
    std::ranges::copy(unread_, begin());
    window_.read_end = begin() + unread_.size();
    unread_.clear();
    return error;
}

int StreamBuffer::begin_writing() {
    if (is_writing()) return 0;
    if (position() >= kFarthestByte) return EFBIG;
    if (store_->is_sequential()) unread_.assign(window_.cursor, ahead());
    start_at(position());
    gather_at(base_);
    return 0;
}

void StreamBuffer::gather_at(std::uint64_t position) {
    base_ = position;
    window_.cursor = begin();
    window_.write_end = begin() + std::min<std::uint64_t>(room_.size(), kFarthestByte - base_);
}

// How many bytes lie ahead of the cursor then.
std::size_t StreamBuffer::fill(std::size_t wanted, int& error) {
    std::size_t there = ahead();
    std::memmove(begin(), window_.cursor, there);
    base_ = position();
    window_.cursor = begin();
    const std::span<char> room = room_.first(std::min(room_.size(), std::max(wanted, read_ahead_)));
    read_ahead_ = std::min(read_ahead_ * 2, room_.size());
    while (there < wanted && error == 0) {
        const std::size_t count = store_->read(base_ + there, room.subspan(there), error);
        if (count == 0) break;
        there += count;
    }
    window_.read_end = begin() + there;
    return there;
}

std::string_view StreamBuffer::peek(std::size_t wanted, int& error) {
    error = begin_reading();
    if (error == 0 && ahead() < wanted) fill(wanted, error);
    return {window_.cursor, ahead()};
}

std::size_t StreamBuffer::read(std::span<char> bytes, int& error) {
    error = room_.empty() ? 0 : begin_reading();
    std::size_t done = 0;
    while (done < bytes.size() && error == 0) {
        const std::span<char> rest = bytes.subspan(done);
        std::size_t count = std::min(ahead(), rest.size());
        if (count == 0 && rest.size() >= room_.size()) {
            count = store_->read(position(), rest, error);
            if (room_.empty()) {
                base_ += count;
            } else {
                base_ = position() + count;
                window_ = {begin(), begin(), begin()};
            }
        } else {
            if (count == 0) count = std::min(fill(std::min(rest.size(), room_.size()), error), rest.size());
            std::memcpy(rest.data(), window_.cursor, count);
            window_.cursor += count;
        }
        if (count == 0) break;
        done += count;
    }
    return done;
}

int StreamBuffer::write(std::string_view bytes) {
    if (bytes.empty()) return 0;
    if (room_.empty()) {
        const int error = store_->write(base_, bytes);
        if (error == 0) base_ += bytes.size();
        return error;
    }
    if (const int error = begin_writing()) return error;
    if (bytes.size() > room_to_gather()) {
        if (const int error = flush()) return error;
        if (bytes.size() >= room_.size()) {
            const int error = store_->write(base_, bytes);
            if (error == 0) gather_at(base_ + bytes.size());
            return error;
        }
        if (bytes.size() > room_to_gather()) return EFBIG;
    }
    std::memcpy(window_.cursor, bytes.data(), bytes.size());
    window_.cursor += bytes.size();
    return 0;
}

int StreamBuffer::flush() {
    if (!is_writing() || window_.cursor == begin()) return 0;
    const std::string_view gathered(begin(), static_cast<std::size_t>(window_.cursor - begin()));
    const int error = store_->write(base_, gathered);
    gather_at(base_ + gathered.size());
    return error;
}

int StreamBuffer::keep() {
    const int flushed = flush();
    const int kept = store_->keep();
    return flushed != 0 ? flushed : kept;
}

void StreamBuffer::forget_read() {
    if (!is_writing() && !store_->is_sequential()) start_at(position());
}

int StreamBuffer::set_position(std::uint64_t to) {
    if (to == position()) return 0;
    if (!is_open()) return base_ = to, 0;
    if (store_->is_sequential()) return ESPIPE;
    const int error = flush();
    const auto filled = static_cast<std::uint64_t>(window_.read_end - begin());
    if (!is_writing() && to >= base_ && to - base_ <= filled) {
        window_.cursor = begin() + (to - base_);
    } else {
        start_at(to);
    }
    return error;
}

std::uint64_t StreamBuffer::length(int& error) {
    const std::uint64_t stored = store_->length(error);
    if (store_->is_sequential()) return position() + ahead();
    return is_writing() && window_.cursor > begin() ? std::max(stored, position()) : stored;
}

int StreamBuffer::set_length(std::uint64_t length) {
    const int error = flush();
    if (error != 0) return error;
    forget_read();
    return store_->set_length(length);
}

bool StreamBuffer::at_end(int& error) {
    error = 0;
    if (ahead() > 0) return false;
    if (!store_->is_sequential() && position() < length(error)) return false;
    // What has no length, or tells none, is asked for a byte.
    if (room_.empty() || (is_writing() && !store_->is_sequential())) return true;
    return peek(1, error).empty();
}

}  // namespace tavrik::core
