#include "examples/tour/app.h"

#include "data/folder_item.h"
#include "examples/tour/tour_window.h"
#include "runtime/frame.h"

namespace tavrik::tour {
namespace {

void new_document(App* self) {
    const Frame frame(self);
    open_window("Tour"_s);
}

void open_document(App* self, Arg<Object> item) {
    const Frame frame(self, item);
    open_window(check_cast<FolderItem>(item)->Name());
}

constexpr OperationRow kOperations[] = {
    operation<&App::Event_NewDocument, new_document>("Event_NewDocument"),
    operation<&App::Event_OpenDocument, open_document>("Event_OpenDocument"),
};

constexpr HandlerRow kHandlers[] = {
    handles<&App::Event_NewDocument>("NewDocument", Application::Events::NewDocument),
    handles<&App::Event_OpenDocument>("OpenDocument", Application::Events::OpenDocument),
};

}  // namespace

const ClassDefinition& App::definition() {
    static constexpr ClassDefinition kDefinition = define<App>({
        .layer = Layer::kApplication,
        .operations = kOperations,
        .handlers = kHandlers,
    });
    return kDefinition;
}

}  // namespace tavrik::tour
