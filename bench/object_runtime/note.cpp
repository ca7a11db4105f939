#include "bench/object_runtime/note.h"

#include "runtime/frame.h"

namespace tavrik::bench {
namespace {

String text(Note* self) {
    const Frame frame(self);
    return self->mText;
}

void set_text(Note* self, const String& value) {
    const Frame frame(self, value);
    self->mText = value;
}

std::int32_t length_of(Note*, const String& text) { return static_cast<std::int32_t>(text.view().size()); }

constexpr OperationRow kOperations[] = {
    operation<&Note::Text, text>("Text"),
    operation<&Note::set_Text, set_text>("=Text"),
    operation<&Note::LengthOf, length_of>("LengthOf"),
};

constexpr FieldRow kFields[] = {
    field<&Note::mText>("mText"),
};

}  // namespace

const ClassDefinition& Note::definition() {
    static constexpr ClassDefinition kDefinition = define<Note>({
        .operations = kOperations,
        .fields = kFields,
    });
    return kDefinition;
}

}  // namespace tavrik::bench
