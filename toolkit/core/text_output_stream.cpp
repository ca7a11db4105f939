#include "toolkit/core/reflection.h"
#include "toolkit/core/stream.h"
#include "toolkit/core/text_streams.h"

#include <tavrik/runtime.h>
#include <tavrik/text_stream.h>

#include <utility>

namespace tavrik {
namespace {

core::Stream& stream_of(Object* object) { return core::stream_state<core::Stream, TextOutputStreamObject>(object); }

const PropertyRecord& delimiter() {
    static const PropertyRecord* const property =
        core::find_property(core::need_class("TextOutputStream"), "Delimiter");
    return *property;
}

}  // namespace

namespace core {

Ref<Object> make_text_output_stream(std::unique_ptr<ByteStore> store) {
    Ref<Object> stream = RuntimeNewObject(need_class("TextOutputStream"));
    stream_of(stream.object()).open(std::move(store));
    return stream;
}

}  // namespace core

void TextOutputStreamInitializer(Object* stream) {
    stream_of(stream);
    core::set_text_property(stream, "Delimiter", "\n"_s);
}
void TextOutputStreamDestructor(Object* stream) { delete std::exchange(stream->native, nullptr); }

void TextOutputStreamHandleCtor(Object* stream, std::int32_t handle, std::int32_t type) {
    stream_of(stream).open_handle(handle, type);
}
std::int32_t TextOutputStreamHandleGetter(Object* stream, std::int32_t type) { return stream_of(stream).handle(type); }

void TextOutputStreamWrite(Object* stream, const String& text) { stream_of(stream).write(text.view()); }

void TextOutputStreamWriteLine(Object* stream, const String& text) {
    using Getter = String (*)(Object*, std::int32_t);
    const String end = reinterpret_cast<Getter>(delimiter().getter)(stream, delimiter().parameter);
    stream_of(stream).write(text.view());
    stream_of(stream).write(end.view());
}

void TextOutputStreamFlush(Object* stream) { stream_of(stream).flush(); }
void TextOutputStreamClose(Object* stream) { stream_of(stream).close(); }
std::int32_t TextOutputStreamLastErrorGetter(Object* stream, std::int32_t) {
    return static_cast<std::int32_t>(stream_of(stream).take_error());
}

}  // namespace tavrik
