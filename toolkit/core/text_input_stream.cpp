#include "toolkit/core/reflection.h"
#include "toolkit/core/text_input.h"
#include "toolkit/core/text_streams.h"

#include <tavrik/runtime.h>
#include <tavrik/text_stream.h>

#include <utility>

namespace tavrik {
namespace {

std::span<char> room_of(Object* object) { return static_cast<TextInputStreamObject*>(object)->buffer; }

core::TextInput& stream_of(Object* object) {
    return core::stream_state<core::TextInput, TextInputStreamObject>(object);
}

// The argument goes before the property.
Ref<Object> encoding_for(Object* stream, Object* argument) {
    if (argument != nullptr) return Ref<Object>::hold(argument);
    static const PropertyRecord* const property = core::find_property(core::need_class("TextInputStream"), "Encoding");
    return reinterpret_cast<Ref<Object> (*)(Object*, std::int32_t)>(property->getter)(stream, property->parameter);
}

}  // namespace

namespace core {

Ref<Object> make_text_input_stream(std::unique_ptr<ByteStore> store) {
    static ClassRecord* const record = need_class("TextInputStream");
    Ref<Object> stream = RuntimeNewObject(record);
    stream_of(stream.object()).open(std::move(store), 0, room_of(stream.object()));
    return stream;
}

}  // namespace core

void TextInputStreamInitializer(Object* stream) { stream_of(stream); }
void TextInputStreamDestructor(Object* stream) { delete std::exchange(stream->native, nullptr); }

void TextInputStreamHandleCtor(Object* stream, std::int32_t handle, std::int32_t type) {
    stream_of(stream).open_handle(handle, type, room_of(stream));
    stream_of(stream).start_text();
}
std::int32_t TextInputStreamHandleGetter(Object* stream, std::int32_t type) { return stream_of(stream).handle(type); }

String TextInputStreamRead(Object* stream, std::int32_t count, Object* encoding) {
    const std::size_t most = count < 0 ? 0 : static_cast<std::size_t>(count);
    return stream_of(stream).read(most, encoding_for(stream, encoding).object());
}
String TextInputStreamReadLine(Object* stream, Object* encoding) {
    return stream_of(stream).read_line(encoding_for(stream, encoding).object());
}
String TextInputStreamReadAll(Object* stream, Object* encoding) {
    return stream_of(stream).read_all(encoding_for(stream, encoding).object());
}

void TextInputStreamClose(Object* stream) { stream_of(stream).close(); }
bool TextInputStreamEOF(Object* stream) { return stream_of(stream).at_text_end(); }
std::int32_t TextInputStreamLastErrorGetter(Object* stream, std::int32_t) {
    return static_cast<std::int32_t>(stream_of(stream).take_error());
}
std::uint64_t TextInputStreamGetPosition(Object* stream, std::int32_t) { return stream_of(stream).text_position(); }
void TextInputStreamSetPosition(Object* stream, std::int32_t, std::uint64_t position) {
    stream_of(stream).set_text_position(position);
}

}  // namespace tavrik
