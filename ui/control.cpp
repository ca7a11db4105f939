#include "ui/control.h"

#include "runtime/frame.h"
#include "ui/pane.h"

namespace tavrik {

void Control::set_TabPanelIndex(std::int32_t index) {
    ControlTabPanelIndexSetter(this, detail::FieldEntry<&Control::mTabPanelIndex>::offset(), index);
}

namespace {

void set_window(Control* self, Arg<Window> window) {
    const Frame frame(self, window);
    self->_mWindow = window;
    if (window) Control::Events::CreatePane.raise(self);
    if (self->_mImp) self->_mImp->set_Window(window);
}

void call_open_event(Control* self) {
    const Frame frame(self);
    self->_mImp->Open();
    Control::Events::Open.raise(self);
}

constexpr OperationRow kOperations[] = {
    operation<&Control::Close, ControlClose>("Close"),
    operation<&Control::_SetWindow, set_window>("_SetWindow"),
    operation<&Control::_CallOpenEvent, call_open_event>("_CallOpenEvent"),
};

constexpr FieldRow kFields[] = {
    field<&Control::_mImp>("_mImp"),
    field<&Control::_mWindow>("_mWindow"),
    field<&Control::_mIndex>("_mIndex"),
    field<&Control::_mName>("_mName"),
    field<&Control::_mPanelIndex>("_mPanelIndex"),
    field<&Control::_mInitialParent>("_mInitialParent"),
};

constexpr PropertyRow kProperties[] = {
    stored<&Control::mName>("Name"),
    stored<&Control::mIndex>("Index"),
    stored<&Control::mTabPanelIndex, ControlTabPanelIndexSetter>("TabPanelIndex"),
    property<&Control::PanelIndex, &Control::set_PanelIndex>("PanelIndex"),
    property<&Control::MouseX>("MouseX"),
    property<&Control::MouseY>("MouseY"),
    property<&Control::Window, ignored>("Window"),
    property<&Control::Handle>("Handle"),
};

constexpr EventRow kEvents[] = {
    event("CreatePane", Control::Events::CreatePane),
    event("Open", Control::Events::Open),
    event("Close", Control::Events::Close),
};

}  // namespace

const ClassDefinition& Control::definition() {
    static constexpr ClassDefinition kDefinition = define<Control>({
        .init = init_forwards_to<Control, RuntimeControlInitializer>,
        .exit = exit_forwards_to<Control, RuntimeControlFinalizer>,
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
