#include "data/text_input_stream.h"

namespace tavrik {
namespace {

bool last_error_is_odd(Object* stream) { return (TextInputStreamLastErrorGetter(stream, 0) & 1) != 0; }

constexpr OperationRow kOperations[] = {
    operation<&TextInputStream::Read, TextInputStreamRead>("Read"),
    operation<&TextInputStream::ReadLine, TextInputStreamReadLine>("ReadLine"),
    operation<&TextInputStream::ReadAll, TextInputStreamReadAll>("ReadAll"),
    operation<&TextInputStream::Close, TextInputStreamClose>("Close"),
    operation<&TextInputStream::EOF_, TextInputStreamEOF>("EOF"),
    operation<&TextInputStream::ReadError, last_error_is_odd>("ReadError"),
    operation<&TextInputStream::Constructor, TextInputStreamHandleCtor>("Constructor"),
    operation<&TextInputStream::Handle, TextInputStreamHandleGetter>("Handle"),
};

constexpr PropertyRow kProperties[] = {
    stored<&TextInputStream::mEncoding>("Encoding"),
    property<&TextInputStream::PositionB, &TextInputStream::set_PositionB>("PositionB"),
    property<&TextInputStream::LastErrorCode>("LastErrorCode"),
};

constexpr InterfaceRow kInterfaces[] = {
    implements<Readable, &TextInputStream::Read, &TextInputStream::EOF_, &TextInputStream::ReadError>(),
};

}  // namespace

const ClassDefinition& TextInputStream::definition() {
    static constexpr ClassDefinition kDefinition = define<TextInputStream>({
        .init = init_forwards_to<TextInputStream, TextInputStreamInitializer>,
        .exit = exit_forwards_to<TextInputStream, TextInputStreamDestructor>,
        .operations = kOperations,
        .properties = kProperties,
        .interfaces = kInterfaces,
    });
    return kDefinition;
}

}  // namespace tavrik
