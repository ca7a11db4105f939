#include "examples/tour/counter.h"

#include "examples/tour/controls.h"
#include "runtime/frame.h"
#include "ui/push_button.h"

namespace tavrik::tour {
namespace {

void pressed(Object* button) {
    const Frame frame(button);
    const Ref<Counter> self = window_of<Counter>(button);
    self->Count(self->mWhat, self->mNumber + 1);
}

void create_controls(Counter* self) {
    const Frame frame(self);
    self->_Move(0, 0, 160, 80);
    const Ref<PushButton> button = add<PushButton>(self, "Count"_s, {20, 26, 120, 28});
    lock_edges(button, true, true, true, false);
    on(button, "Action"_s, pressed);
}

void count(Counter* self, const String& what, std::int32_t number) {
    const Frame frame(self);
    self->mWhat = what;
    self->mNumber = number;
    const String caption = text(std::string(what.view()) + ": " + std::to_string(number));
    check_cast<PushButton>(self->_GetControl("Count"_s))->set_Caption(caption);
}

constexpr OperationRow kOperations[] = {
    operation<&Counter::CreateControls, create_controls>("CreateControls"),
    operation<&Counter::Count, count>("Count"),
};

constexpr FieldRow kFields[] = {
    field<&Counter::mWhat>("mWhat"),
    field<&Counter::mNumber>("mNumber"),
};

constexpr HandlerRow kHandlers[] = {
    handles<&Counter::CreateControls>("CreateControls", Window::Events::CreateControls),
};

}  // namespace

const ClassDefinition& Counter::definition() {
    static constexpr ClassDefinition kDefinition = define<Counter>({
        .layer = Layer::kApplication,
        .operations = kOperations,
        .fields = kFields,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik::tour
