#include "toolkit/core/application.h"

#include "toolkit/core/event_scope.h"
#include "toolkit/core/executable.h"
#include "toolkit/core/folder_item.h"
#include "toolkit/core/main_thread.h"
#include "toolkit/core/menu_item.h"
#include "toolkit/core/mouse_cursor.h"
#include "toolkit/core/polls.h"
#include "toolkit/core/program.h"
#include "toolkit/core/reflection.h"
#include "toolkit/core/scheduler.h"

#include <tavrik/application.h>
#include <tavrik/fields.h>
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
    std::optional<front::Cursor> cursor;
    bool help_visible = true;
};

constinit core::ObjectField menu_handlers_field{"Application", "_mMenuHandlers"};
constinit core::Event<void()> new_document{"Application", "NewDocument"};
constinit core::Event<void(Object*)> open_document{"Application", "OpenDocument"};

ApplicationState& state_of(Object* app, const char* call = __builtin_FUNCTION()) {
    core::need_main_thread(call);
    if (app == nullptr) RaiseNilObjectException();
    if (app->native == nullptr) app->native = new ApplicationState;
    return *native<ApplicationState>(app);
}

// A front that comes later is told then.
template <class Tell>
void tell_front(Tell tell) {
    if (core::has_front()) core::on_main_stack([&] { tell(core::front()); });
}

}  // namespace

namespace core {

bool quits_with_last_window() {
    const Ref<Object> app = getAppObject();
    return app ? state_of(app.object()).auto_quit : kQuitsWithLastWindow;
}

Object* application_menu_bar(Object* app) { return state_of(app).menu_bar.object(); }
const MenuHandlers& application_menu_handlers(Object* app) { return state_of(app).menu_handlers; }

void tell_front_of(Object* app) {
    const ApplicationState& state = state_of(app);
    if (state.cursor) front().set_cursor(state.cursor);
    if (!state.help_visible) front().set_help_visible(false);
}

}  // namespace core

void ApplicationInitializer(Object* app) {
    state_of(app);
    core::set_bool_property(app, "BalloonHelpVisible", true);
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

void ApplicationNewDocument(Object* app) {
    state_of(app);
    new_document(app);
}

void ApplicationOpenDocument(Object* app, Object* item) {
    state_of(app);
    open_document(app, item);
}

void ApplicationAddPollableObject(Object* app, Object* object) {
    state_of(app);
    if (object == nullptr) RaiseNilObjectException();
    core::polls().add(object);
}

void ApplicationRemovePollableObject(Object* app, Object* object) {
    state_of(app);
    core::polls().remove(object);
}

void appMouseCursorSetter(Object* app, std::int32_t field, Object* cursor) {
    ApplicationState& state = state_of(app);
    objSetter(app, field, cursor);
    state.cursor = core::cursor_of(cursor);
    tell_front([&](front::Front& front) { front.set_cursor(state.cursor); });
}

bool AppBalloonHelpVisibleGetter(Object* app, std::int32_t field) { return boolGetter(app, field); }

void AppBalloonHelpVisibleSetter(Object* app, std::int32_t field, bool visible) {
    ApplicationState& state = state_of(app);
    boolSetter(app, field, visible);
    if (std::exchange(state.help_visible, visible) == visible) return;
    tell_front([visible](front::Front& front) { front.set_help_visible(visible); });
}

Ref<Object> AppFolderItemGetter(Object*, std::int32_t) { return core::make_folder_item(core::executable_path()); }

std::int32_t AppGetCurrentEventTime(Object*, std::int32_t) { return core::EventScope::ticks(); }

bool AppAutoCloseGetter(Object* app, std::int32_t) { return state_of(app).auto_quit; }
void AppAutoCloseSetter(Object* app, std::int32_t, bool automatic) { state_of(app).auto_quit = automatic; }

}  // namespace tavrik
