#include "ui/mdi_window.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&MDIWindow::Maximize, MDIWindowMaximize>("Maximize"),
    operation<&MDIWindow::Minimize, MDIWindowMinimize>("Minimize"),
    operation<&MDIWindow::Restore, MDIWindowRestore>("Restore"),
};

constexpr PropertyRow kProperties[] = {
    property<&MDIWindow::Left, &MDIWindow::set_Left>("Left"),
    property<&MDIWindow::Top, &MDIWindow::set_Top>("Top"),
    property<&MDIWindow::Width, &MDIWindow::set_Width>("Width"),
    property<&MDIWindow::Height, &MDIWindow::set_Height>("Height"),
    stored<&MDIWindow::mMinWidth>("MinWidth"),
    stored<&MDIWindow::mMinHeight>("MinHeight"),
    stored<&MDIWindow::mMaxWidth>("MaxWidth"),
    stored<&MDIWindow::mMaxHeight>("MaxHeight"),
    property<&MDIWindow::Title, &MDIWindow::set_Title>("Title"),
    property<&MDIWindow::Visible, &MDIWindow::set_Visible>("Visible"),
    property<&MDIWindow::Handle>("Handle"),
};

constexpr EventRow kEvents[] = {
    event("Open", MDIWindow::Events::Open),         event("Resized", MDIWindow::Events::Resized),
    event("Moved", MDIWindow::Events::Moved),       event("Minimize", MDIWindow::Events::Minimize),
    event("Maximize", MDIWindow::Events::Maximize), event("Restore", MDIWindow::Events::Restore),
};

}  // namespace

const ClassDefinition& MDIWindow::definition() {
    static constexpr ClassDefinition kDefinition = define<MDIWindow>({
        .init = init_forwards_to<MDIWindow, MDIWindowConstructor>,
        .exit = exit_forwards_to<MDIWindow, MDIWindowDestructor>,
        .operations = kOperations,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
