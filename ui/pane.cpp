#include "ui/pane.h"

#include "runtime/frame.h"

namespace tavrik {

void _Pane::set_Window(Arg<tavrik::Window> window) {
    const Frame frame(this, window);
    mWindow = window;
    AddToParentPane();
}

namespace {

void destroy(_Pane* self) {
    const Frame frame(self);
    self->set_Control(nullptr);
}

void close(_Pane* self) {
    const Frame frame(self);
    self->set_Control(nullptr);
}

bool is_root_control(_Pane* self) {
    const Frame frame(self);
    return !self->mParent && self->mWindow;
}

void construct(_Pane* self, Arg<Control> control) {
    const Frame frame(self, control);
    self->set_Control(control);
    self->CreateImp();
}

void run_destructor(Object* self) { static_cast<_Pane*>(self)->Destructor(); }

constexpr OperationRow kOperations[] = {
    operation<&_Pane::CreateImp, no_effect>("CreateImp"),
    operation<&_Pane::Destructor, destroy>("Destructor"),
    operation<&_Pane::Close, close>("Close"),
    operation<&_Pane::IsRootControl, is_root_control>("IsRootControl"),
    operation<&_Pane::Constructor, construct>("Constructor"),
    operation<&_Pane::AddToParentPane, no_effect>("AddToParentPane"),
    operation<&_Pane::Open, no_effect>("Open"),
};

constexpr FieldRow kFields[] = {
    field<&_Pane::mWindow>("mWindow"),
    field<&_Pane::mParent>("mParent"),
    field<&_Pane::mChildren>("mChildren"),
    field<&_Pane::mControl>("mControl"),
};

constexpr PropertyRow kProperties[] = {
    property<&_Pane::Window, &_Pane::set_Window>("Window"),
    property<&_Pane::Control, &_Pane::set_Control>("Control"),
};

}  // namespace

const ClassDefinition& _Pane::definition() {
    static constexpr ClassDefinition kDefinition = define<_Pane>({
        .destructor = run_destructor,
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
    });
    return kDefinition;
}

}  // namespace tavrik
