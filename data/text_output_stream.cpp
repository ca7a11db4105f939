#include "data/text_output_stream.h"

namespace tavrik {
namespace {

bool last_error_is_odd(Object* stream) { return (TextOutputStreamLastErrorGetter(stream, 0) & 1) != 0; }

constexpr OperationRow kOperations[] = {
    operation<&TextOutputStream::WriteLine, TextOutputStreamWriteLine>("WriteLine"),
    operation<&TextOutputStream::Write, TextOutputStreamWrite>("Write"),
    operation<&TextOutputStream::Close, TextOutputStreamClose>("Close"),
    operation<&TextOutputStream::Flush, TextOutputStreamFlush>("Flush"),
    operation<&TextOutputStream::WriteError, last_error_is_odd>("WriteError"),
    operation<&TextOutputStream::Constructor, TextOutputStreamHandleCtor>("Constructor"),
    operation<&TextOutputStream::Handle, TextOutputStreamHandleGetter>("Handle"),
    operation<&TextOutputStream::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr PropertyRow kProperties[] = {
    stored<&TextOutputStream::mDelimiter>("Delimiter"),
    property<&TextOutputStream::LastErrorCode>("LastErrorCode"),
};

constexpr InterfaceRow kInterfaces[] = {
    implements<Writeable, &TextOutputStream::Write, &TextOutputStream::Flush, &TextOutputStream::WriteError>(),
};

}  // namespace

const ClassDefinition& TextOutputStream::definition() {
    static constexpr ClassDefinition kDefinition = define<TextOutputStream>({
        .init = init_forwards_to<TextOutputStream, TextOutputStreamInitializer>,
        .exit = exit_forwards_to<TextOutputStream, TextOutputStreamDestructor>,
        .operations = kOperations,
        .properties = kProperties,
        .interfaces = kInterfaces,
    });
    return kDefinition;
}

}  // namespace tavrik
