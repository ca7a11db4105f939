#include "ui/prefs_menu_item.h"

namespace tavrik {
namespace {

constexpr OperationRow kOperations[] = {
    operation<&PrefsMenuItem::Event_Action, PrefsMenuAction>("Event_Action"),
};

constexpr EventRow kEvents[] = {
    event("Action", PrefsMenuItem::Events::Action),
};

constexpr HandlerRow kHandlers[] = {
    handles<&PrefsMenuItem::Event_Action>("Action", MenuItem::Events::Action),
};

}  // namespace

const ClassDefinition& PrefsMenuItem::definition() {
    static constexpr ClassDefinition kDefinition = define<PrefsMenuItem>({
        .operations = kOperations,
        .events = kEvents,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik
