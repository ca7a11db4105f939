#include "ui/quit_menu_item.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&QuitMenuItem::Event_Action, QuitMenuAction>("Event_Action"),
};

constexpr EventRow kEvents[] = {
    event("Action", QuitMenuItem::Events::Action),
};

constexpr HandlerRow kHandlers[] = {
    handles<&QuitMenuItem::Event_Action>("Action", MenuItem::Events::Action),
};

}  // namespace

const ClassDefinition& QuitMenuItem::definition() {
    static constexpr ClassDefinition kDefinition = define<QuitMenuItem>({
        .operations = kOperations,
        .events = kEvents,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik
