#include "toolkit/core/binary_stream.h"

#include "toolkit/core/encoding.h"
#include "toolkit/core/memory_stores.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/stream.h"
#include "toolkit/core/text.h"

#include <tavrik/binary_stream.h>
#include <tavrik/runtime.h>

#include <utility>

namespace tavrik {
namespace {

core::Stream& stream_of(Object* object) { return core::stream_state<core::Stream, BinaryStreamObject>(object); }

}  // namespace

namespace core {

Ref<Object> make_binary_stream(std::unique_ptr<ByteStore> store) {
    Ref<Object> stream = RuntimeNewObject(need_class("BinaryStream"));
    stream_of(stream.object()).open(std::move(store));
    return stream;
}

}  // namespace core

void BinaryStreamInitializer(Object* stream) { stream_of(stream); }
void BinaryStreamDestructor(Object* stream) { delete std::exchange(stream->native, nullptr); }

void BinaryStringStringCtor(Object* stream, const String& text) {
    stream_of(stream).open(std::make_unique<core::StringStore>(text));
}
void BinaryStringMemoryBlockCtor(Object* stream, Object* block) {
    stream_of(stream).open(std::make_unique<core::MemoryBlockStore>(block));
}
void BinaryStreamHandleCtor(Object* stream, std::int32_t handle, std::int32_t type) {
    stream_of(stream).open_handle(handle, type);
}
std::int32_t BinaryStreamHandleGetter(Object* stream, std::int32_t type) { return stream_of(stream).handle(type); }

void BinaryStreamClose(Object* stream) { stream_of(stream).close(); }
void BinaryStreamFlush(Object* stream) { stream_of(stream).flush(); }
bool BinaryStreamEOF(Object* stream) { return stream_of(stream).at_end(); }
std::int32_t BinaryStreamLastErrorGetter(Object* stream, std::int32_t) {
    return static_cast<std::int32_t>(stream_of(stream).take_error());
}
std::uint64_t BinaryStreamGetLength(Object* stream, std::int32_t) { return stream_of(stream).length(); }
void BinaryStreamSetLength(Object* stream, std::int32_t, std::uint64_t length) { stream_of(stream).set_length(length); }
std::uint64_t BinaryStreamGetPosition(Object* stream, std::int32_t) { return stream_of(stream).position(); }
void BinaryStreamSetPosition(Object* stream, std::int32_t, std::uint64_t position) {
    stream_of(stream).set_position(position);
}

bool read_behind_window(Object* stream, void* bytes, std::size_t width) {
    return stream_of(stream).read({static_cast<char*>(bytes), width});
}
void write_behind_window(Object* stream, const void* bytes, std::size_t width) {
    stream_of(stream).write({static_cast<const char*>(bytes), width});
}

String BinaryStreamRead(Object* stream, std::int32_t count, Object* encoding) {
    if (count <= 0) return {};
    return stream_of(stream).read_text(static_cast<std::size_t>(count), core::code_of(encoding));
}

void BinaryStreamWrite(Object* stream, const String& bytes) { stream_of(stream).write(bytes.view()); }

String BinaryStreamReadPString(Object* stream, Object* encoding) {
    return BinaryStreamRead(stream, BinaryStreamReadUInt8(stream), encoding);
}

void BinaryStreamWritePString(Object* stream, const String& text) {
    const std::string_view bytes = core::countable(text.view());
    std::string counted(1, static_cast<char>(static_cast<unsigned char>(bytes.size())));
    stream_of(stream).write(counted.append(bytes));
}

}  // namespace tavrik
