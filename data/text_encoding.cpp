#include "data/text_encoding.h"

#include "runtime/frame.h"

namespace tavrik {
namespace {

std::int32_t compare(TextEncoding* self, Arg<TextEncoding> other) {
    const Frame frame(self, other);
    return self->Equals(other) ? 0 : 1;
}

constexpr OperationRow kOperations[] = {
    operation<&TextEncoding::Chr, TextEncodingChr>("Chr"),
    operation<&TextEncoding::Equals, TextEncodingEquals>("Equals"),
    operation<&TextEncoding::Operator_Compare, compare>("Operator_Compare"),
};

constexpr PropertyRow kProperties[] = {
    property<&TextEncoding::base>("base"),     property<&TextEncoding::variant>("variant"),
    property<&TextEncoding::format>("format"), property<&TextEncoding::internetName>("internetName"),
    property<&TextEncoding::code>("code"),
};

}  // namespace

const ClassDefinition& TextEncoding::definition() {
    static constexpr ClassDefinition kDefinition = define<TextEncoding>({
        .operations = kOperations,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
