#include "toolkit/core/application.h"

#include "toolkit/core/menu_item.h"
#include "toolkit/core/reflection.h"

#include <tavrik/application.h>
#include <tavrik/runtime.h>

#include <utility>

namespace tavrik {
namespace {

#if defined(__APPLE__)
constexpr bool kQuitsWithLastWindow = false;
#else
constexpr bool kQuitsWithLastWindow = true;
#endif

struct ApplicationState : NativeState {
    Ref<Object> menu_bar;
    core::MenuHandlers menu_handlers;
    bool auto_quit = kQuitsWithLastWindow;
};

constinit core::ObjectField menu_handlers_field{"Application", "_mMenuHandlers"};

ApplicationState& state_of(Object* app) {
    if (app == nullptr) RaiseNilObjectException();
    if (app->native == nullptr) app->native = new ApplicationState;
    return *native<ApplicationState>(app);
}

}  // namespace

namespace core {

bool quits_with_last_window() {
    const Ref<Object> app = getAppObject();
    return app ? state_of(app.object()).auto_quit : kQuitsWithLastWindow;
}

Object* application_menu_bar(Object* app) { return state_of(app).menu_bar.object(); }
const MenuHandlers& application_menu_handlers(Object* app) { return state_of(app).menu_handlers; }

}  // namespace core

void ApplicationInitializer(Object* app) {
    state_of(app);
    menu_handlers_field.set(app, RuntimeNewObject(core::need_class("Dictionary")).object());
}

void ApplicationFinalizer(Object* app) { delete std::exchange(app->native, nullptr); }

Ref<Object> AppMenuBarGetter(Object* app, std::int32_t) { return state_of(app).menu_bar; }
void AppMenuBarSetter(Object* app, std::int32_t, Object* bar) {
    state_of(app).menu_bar = Ref<Object>(bar);
    core::all_menus_changed();
}

void ApplicationAddMenuHandler(Object* app, const String& item, Function handler) {
    state_of(app).menu_handlers.add(menu_handlers_field.get(app).object(), item, handler);
}

bool AppAutoCloseGetter(Object* app, std::int32_t) { return state_of(app).auto_quit; }
void AppAutoCloseSetter(Object* app, std::int32_t, bool automatic) { state_of(app).auto_quit = automatic; }

}  // namespace tavrik
