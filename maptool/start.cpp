#include "maptool/start.h"

#include "maptool/app.h"
#include "maptool/menu_bar1.h"
#include "maptool/window1.h"
#include "runtime/tavrik_module.h"

namespace tavrik {
namespace {

// The application declares no file types: "Load Map" makes its own.
void _InitFileTypes() {}

void _NewAppInstance() {
    const Ref<App> app = make<App>();
    app->set_MenuBar(MenuBar1::MenuBar1_());
    Tavrik::_RuntimeRegisterAppObject(app);
}

// The application has no menu handlers.
void _ApplicationAddMenuHandlers() {}

void _MakeDefaultView() { Window1::Window1_(); }

}  // namespace

void _Main() {
    Ref<Object> caught;
    try {
        Tavrik::_RuntimeInitExternalClasses();
        Tavrik::_InitPluginEntrypoints();
        _InitFileTypes();
        _NewAppInstance();
        _ApplicationAddMenuHandlers();
        _MakeDefaultView();
        Tavrik::_RuntimeRun();
        return;
    } catch (const RaisedException& raised) {
        caught = raised.exception;
    }
    Tavrik::_UnhandledException(Arg<RuntimeException>::unchecked(caught.object()));
}

}  // namespace tavrik
