#include "data/application.h"

#include "data/dictionary.h"
#include "runtime/frame.h"
#include "ui/menu_item.h"

namespace tavrik {
namespace {

void enable_menu_items(Application* self, Arg<ArrayOf<MenuItem>> items) {
    const Frame frame(self, items);
    Application::Events::EnableMenuItems.raise(self);
    enable_handled(items, self->_mMenuHandlers);
}

void call_open(Application* self) {
    const Frame frame(self);
    Application::Events::Open.raise(self);
}

bool handle_menu_command(Application* self, Arg<MenuItem> item) {
    const Frame frame(self, item);
    return false;
}

constexpr OperationRow kOperations[] = {
    operation<&Application::_AddMenuHandler, ApplicationAddMenuHandler>("_AddMenuHandler"),
    operation<&Application::_EnableMenuItems, enable_menu_items>("_EnableMenuItems"),
    operation<&Application::_CallOpen, call_open>("_CallOpen"),
    operation<&Application::_HandleMenuCommand, handle_menu_command>("_HandleMenuCommand"),
    operation<&Application::__DependencyList, no_effect>("__DependencyList").not_public(),
};

constexpr FieldRow kFields[] = {
    field<&Application::_mMenuBar>("_mMenuBar"),
    field<&Application::_mMenuHandlers>("_mMenuHandlers"),
};

constexpr PropertyRow kProperties[] = {
    property<&Application::MenuBar, &Application::set_MenuBar>("MenuBar"),
    property<&Application::AutoQuit, &Application::set_AutoQuit>("AutoQuit"),
};

constexpr EventRow kEvents[] = {
    event("Open", Application::Events::Open),
    event("Close", Application::Events::Close),
    event("EnableMenuItems", Application::Events::EnableMenuItems),
    event("NewDocument", Application::Events::NewDocument),
    event("OpenDocument", Application::Events::OpenDocument),
    event("HandleAppleEvent", Application::Events::HandleAppleEvent),
    event("Activate", Application::Events::Activate),
    event("Deactivate", Application::Events::Deactivate),
    event("UnhandledException", Application::Events::UnhandledException),
    event("CancelClose", Application::Events::CancelClose),
};

}  // namespace

const ClassDefinition& Application::definition() {
    static constexpr ClassDefinition kDefinition = define<Application>({
        .init = init_forwards_to<Application, ApplicationInitializer>,
        .exit = exit_forwards_to<Application, ApplicationFinalizer>,
        .operations = kOperations,
        .fields = kFields,
        .properties = kProperties,
        .events = kEvents,
    });
    return kDefinition;
}

}  // namespace tavrik
