#include "examples/tour/app.h"
#include "examples/tour/ask_window.h"
#include "examples/tour/board.h"
#include "examples/tour/counter.h"
#include "examples/tour/menus.h"
#include "examples/tour/tour_window.h"
#include "runtime/tavrik_module.h"
#include "ui/class_layer.h"

#include <cstdlib>

using namespace tavrik;

namespace {

void initialize() {
    initialize_class_layer();
    build_classes<tour::App, tour::AskWindow, tour::Board, tour::Counter, tour::TourWindow>();
}

// The windows come with the documents, or with NewDocument.
void run() {
    Ref<Object> caught;
    try {
        Tavrik::_RuntimeInitExternalClasses();
        Tavrik::_InitPluginEntrypoints();
        const Ref<tour::App> app = make<tour::App>();
        app->set_MenuBar(tour::make_menu_bar());
        Tavrik::_RuntimeRegisterAppObject(app);
        Tavrik::_RuntimeRun();
        return;
    } catch (const RaisedException& raised) {
        caught = raised.exception;
    }
    Tavrik::_UnhandledException(Arg<RuntimeException>::unchecked(caught.object()));
}

}  // namespace

int main() {
    RuntimeInit();
    RuntimeSetVersion({.major = 1, .short_text = "1.0", .long_text = "tour 1.0", .package = "A tour of the classes"});
    initialize();
    run();
    finalize_class_layer();
    std::exit(RuntimeExit());
}
