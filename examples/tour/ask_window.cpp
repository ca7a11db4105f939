#include "examples/tour/ask_window.h"

#include "examples/tour/controls.h"
#include "runtime/frame.h"
#include "ui/push_button.h"

namespace tavrik::tour {

bool ask(Arg<Window> over, const String& question) {
    const Ref<AskWindow> window = make<AskWindow>();
    window->Window_();
    window->set_Title(question);
    window->ShowModalWithin(over);
    return window->mAccepted;
}

namespace {

void cancelled(Object* button) {
    const Frame frame(button);
    window_of<AskWindow>(button)->Close();
}

void accepted(Object* button) {
    const Frame frame(button);
    const Ref<AskWindow> self = window_of<AskWindow>(button);
    self->mAccepted = true;
    self->Close();
}

void create_controls(AskWindow* self) {
    const Frame frame(self);
    constexpr std::int32_t kMovableModal = 1;
    constexpr std::int32_t kMiddleOfParent = 1;
    self->set_Frame(kMovableModal);
    self->set_Placement(kMiddleOfParent);
    self->set_Width(260);
    self->set_Height(68);

    const Ref<PushButton> cancel = add<PushButton>(self, "Cancel"_s, {20, 20, 100, 28});
    cancel->set_Caption("Cancel"_s);
    cancel->set_Cancel(true);
    on(cancel, "Action"_s, cancelled);

    const Ref<PushButton> ok = add<PushButton>(self, "OK"_s, {140, 20, 100, 28});
    ok->set_Caption("OK"_s);
    ok->set_Default(true);
    on(ok, "Action"_s, accepted);
}

constexpr OperationRow kOperations[] = {
    operation<&AskWindow::CreateControls, create_controls>("CreateControls"),
};

constexpr FieldRow kFields[] = {field<&AskWindow::mAccepted>("mAccepted")};

constexpr HandlerRow kHandlers[] = {
    handles<&AskWindow::CreateControls>("CreateControls", Window::Events::CreateControls),
};

}  // namespace

const ClassDefinition& AskWindow::definition() {
    static constexpr ClassDefinition kDefinition = define<AskWindow>({
        .layer = Layer::kApplication,
        .operations = kOperations,
        .fields = kFields,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik::tour
