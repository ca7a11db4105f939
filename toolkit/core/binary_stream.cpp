#include "toolkit/core/binary_stream.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/failure.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/streams.h"

#include <tavrik/binary_stream.h>
#include <tavrik/runtime.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstring>
#include <limits>

namespace tavrik {
namespace {

class StreamState;

// Every stream that lives, so that all can be flushed; and what went wrong in those that have ended.
struct Streams {
    std::vector<StreamState*> open;
    std::vector<std::string> failures;
};

Streams& streams() {
    static auto* const all = new Streams;
    return *all;
}

StreamError error_for_write(int error) {
    return error == ENOSPC || error == EDQUOT || error == EFBIG ? StreamError::kNoRoom : StreamError::kWriteFailed;
}

class StreamState final : public NativeState {
public:
    StreamState() { streams().open.push_back(this); }
    ~StreamState() override {
        close();
        if (unread_) streams().failures.push_back(std::move(failure_));
        std::erase(streams().open, this);
    }

    void open(core::FileStore file) { file_.emplace(std::move(file)); }

    bool read(std::span<char> bytes) {
        const std::size_t count = read_some(bytes);
        if (count == bytes.size()) return true;
        position_ -= count;
        return false;
    }

    // As many bytes as there are, up to the number wanted; fewer set the error.
    std::size_t read_some(std::span<char> bytes) {
        if (!file_) return fail_not_open(), 0;
        int error = 0;
        const std::size_t count = file_->read(position_, bytes, error);
        if (error != 0) {
            fail(StreamError::kReadFailed, "read", error);
        } else if (count < bytes.size()) {
            note_end();
        }
        position_ += count;
        return count;
    }

    // Allocates no more than there is.
    String read_up_to(std::size_t count) {
        const std::uint64_t end = length();
        const std::uint64_t left = end > position_ ? end - position_ : 0;
        std::vector<char> bytes(std::min<std::uint64_t>(left, count));
        const std::size_t read = read_some(bytes);
        if (bytes.size() < count && file_) note_end();
        return String(std::string_view(bytes.data(), read));
    }

    void write(std::string_view bytes) {
        if (!file_) return fail_not_open();
        if (!file_->writable()) return fail(StreamError::kReadOnly, "written", EBADF);
        const int error = file_->write(position_, bytes);
        if (error != 0) return fail(error_for_write(error), "written", error);
        position_ += bytes.size();
    }

    void flush() {
        if (!file_) return;
        if (const int error = file_->flush()) fail(error_for_write(error), "written", error);
    }

    // At the end of an event: nothing is held back, and nothing old is kept.
    void settle() {
        flush();
        if (file_) file_->forget_read();
    }

    void close() {
        if (!file_) return;
        if (const int error = file_->close()) fail(error_for_write(error), "written", error);
        path_ = file_->path();
        file_.reset();
    }

    std::uint64_t length() {
        if (!file_) return 0;
        int error = 0;
        const std::uint64_t length = file_->length(error);
        if (error != 0) fail(StreamError::kReadFailed, "read", error);
        return length;
    }

    void set_length(std::uint64_t length) {
        if (!file_) return fail_not_open();
        if (!file_->writable()) return fail(StreamError::kReadOnly, "written", EBADF);
        if (const int error = file_->set_length(length)) fail(error_for_write(error), "written", error);
    }

    std::uint64_t position() const { return position_; }
    void set_position(std::uint64_t position) {
        position_ = position;
        if (error_ == StreamError::kEndOfData) error_ = StreamError::kNone;
    }

    bool at_end() { return position_ >= length(); }

    StreamError take_error() {
        unread_ = false;
        return error_;
    }
    bool take_unread(std::string& failure) {
        if (!unread_) return false;
        unread_ = false;
        failure = failure_;
        return true;
    }

private:
    const std::string& path() const { return file_ ? file_->path() : path_; }

    void fail(StreamError error, std::string_view not_done, int system_error) {
        note(error, core::describe_failure(path(), not_done, system_error));
    }
    void fail_not_open() { note(StreamError::kNotOpen, core::describe_failure(path(), "used", "it is not open")); }
    void note_end() {
        if (error_ != StreamError::kNone) return;
        note(StreamError::kEndOfData,
             core::describe_failure(path(), "read at byte " + std::to_string(position_), "the file is too short"));
    }
    void note(StreamError error, std::string failure) {
        error_ = error;
        unread_ = true;
        failure_ = std::move(failure);
        core::EventScope::note_failure(failure_);
    }

    std::optional<core::FileStore> file_;
    std::string path_;  // once the file is closed
    std::uint64_t position_ = 0;
    StreamError error_ = StreamError::kNone;
    bool unread_ = false;
    std::string failure_;
};

StreamState& state_of(Object* stream) {
    if (stream == nullptr) RaiseNilObjectException();
    if (stream->native == nullptr) stream->native = new StreamState;
    return *native<StreamState>(stream);
}

bool is_little_endian(Object* stream) {
    static const PropertyRecord* const property = core::find_property(core::need_class("BinaryStream"), "LittleEndian");
    return reinterpret_cast<bool (*)(Object*, std::int32_t)>(property->getter)(stream, property->parameter);
}

bool needs_swap(Object* stream) { return is_little_endian(stream) != (std::endian::native == std::endian::little); }

template <class T>
T read_value(Object* stream) {
    std::array<char, sizeof(T)> bytes{};
    if (!state_of(stream).read(bytes)) return T{};
    if (sizeof(T) > 1 && needs_swap(stream)) std::ranges::reverse(bytes);
    return std::bit_cast<T>(bytes);
}

template <class T>
void write_value(Object* stream, T value) {
    auto bytes = std::bit_cast<std::array<char, sizeof(T)>>(value);
    if (sizeof(T) > 1 && needs_swap(stream)) std::ranges::reverse(bytes);
    state_of(stream).write({bytes.data(), bytes.size()});
}

}  // namespace

namespace core {

Ref<Object> make_binary_stream(FileStore file) {
    Ref<Object> stream = RuntimeNewObject(need_class("BinaryStream"));
    state_of(stream.object()).open(std::move(file));
    return stream;
}

void flush_all_streams() {
    for (StreamState* const stream : streams().open) stream->settle();
}

std::vector<std::string> take_unread_stream_failures() {
    std::vector<std::string> failures = std::exchange(streams().failures, {});
    for (StreamState* const stream : streams().open) {
        std::string failure;
        if (stream->take_unread(failure)) failures.push_back(std::move(failure));
    }
    return failures;
}

}  // namespace core

void BinaryStreamInitializer(Object* stream) { state_of(stream); }
void BinaryStreamDestructor(Object* stream) { delete std::exchange(stream->native, nullptr); }
void BinaryStreamClose(Object* stream) { state_of(stream).close(); }
void BinaryStreamFlush(Object* stream) { state_of(stream).flush(); }
bool BinaryStreamEOF(Object* stream) { return state_of(stream).at_end(); }
std::int32_t BinaryStreamLastErrorGetter(Object* stream, std::int32_t) {
    return static_cast<std::int32_t>(state_of(stream).take_error());
}
std::uint64_t BinaryStreamGetLength(Object* stream, std::int32_t) { return state_of(stream).length(); }
void BinaryStreamSetLength(Object* stream, std::int32_t, std::uint64_t length) { state_of(stream).set_length(length); }
std::uint64_t BinaryStreamGetPosition(Object* stream, std::int32_t) { return state_of(stream).position(); }
void BinaryStreamSetPosition(Object* stream, std::int32_t, std::uint64_t position) {
    state_of(stream).set_position(position);
}

std::int32_t BinaryStreamReadByte(Object* stream) { return read_value<std::uint8_t>(stream); }
std::int32_t BinaryStreamReadShort(Object* stream) { return read_value<std::int16_t>(stream); }
std::int32_t BinaryStreamReadLong(Object* stream) { return read_value<std::int32_t>(stream); }
std::int8_t BinaryStreamReadInt8(Object* stream) { return read_value<std::int8_t>(stream); }
std::int16_t BinaryStreamReadInt16(Object* stream) { return read_value<std::int16_t>(stream); }
std::int64_t BinaryStreamReadInt64(Object* stream) { return read_value<std::int64_t>(stream); }
std::uint8_t BinaryStreamReadUInt8(Object* stream) { return read_value<std::uint8_t>(stream); }
std::uint16_t BinaryStreamReadUInt16(Object* stream) { return read_value<std::uint16_t>(stream); }
std::uint32_t BinaryStreamReadUInt32(Object* stream) { return read_value<std::uint32_t>(stream); }
std::uint64_t BinaryStreamReadUInt64(Object* stream) { return read_value<std::uint64_t>(stream); }
double BinaryStreamReadFloat(Object* stream) { return double{read_value<float>(stream)}; }
double BinaryStreamReadDouble(Object* stream) { return read_value<double>(stream); }
Currency BinaryStreamReadCurrency(Object* stream) { return {read_value<std::int64_t>(stream)}; }
bool BinaryStreamReadBoolean(Object* stream) { return read_value<std::uint8_t>(stream) != 0; }

void BinaryStreamWriteByte(Object* stream, std::int32_t value) {
    write_value(stream, static_cast<std::uint8_t>(value));
}
void BinaryStreamWriteShort(Object* stream, std::int32_t value) {
    write_value(stream, static_cast<std::int16_t>(value));
}
void BinaryStreamWriteLong(Object* stream, std::int32_t value) { write_value(stream, value); }
void BinaryStreamWriteInt8(Object* stream, std::int8_t value) { write_value(stream, value); }
void BinaryStreamWriteInt16(Object* stream, std::int16_t value) { write_value(stream, value); }
void BinaryStreamWriteInt64(Object* stream, std::int64_t value) { write_value(stream, value); }
void BinaryStreamWriteUInt8(Object* stream, std::uint8_t value) { write_value(stream, value); }
void BinaryStreamWriteUInt16(Object* stream, std::uint16_t value) { write_value(stream, value); }
void BinaryStreamWriteUInt32(Object* stream, std::uint32_t value) { write_value(stream, value); }
void BinaryStreamWriteUInt64(Object* stream, std::uint64_t value) { write_value(stream, value); }
void BinaryStreamWriteFloat(Object* stream, double value) { write_value(stream, static_cast<float>(value)); }
void BinaryStreamWriteDouble(Object* stream, double value) { write_value(stream, value); }
void BinaryStreamWriteCurrency(Object* stream, Currency value) { write_value(stream, value.ten_thousandths); }
void BinaryStreamWriteBoolean(Object* stream, bool value) { write_value(stream, static_cast<std::uint8_t>(value)); }

String BinaryStreamRead(Object* stream, std::int32_t count, Object*) {
    if (count <= 0) return {};
    return state_of(stream).read_up_to(static_cast<std::size_t>(count));
}

void BinaryStreamWrite(Object* stream, const String& bytes) { state_of(stream).write(bytes.view()); }

}  // namespace tavrik
